#pragma once

#include "base/Date.h"

#include <QHashFunctions>
#include <QString>
#include <QUuid>

/// One entry of a folder listing. Two items are equal when their paths are, whatever else differs, so a selection
/// outlives a new listing.
struct FileItem
{
    QUuid id; ///< fresh at each creation: it identifies a row, not a file
    QString name;
    QString path;             ///< absolute
    qint64 size = 0;          ///< bytes of the entry itself; for a folder not the total of what is in it
    bool isDirectory = false; ///< of the entry itself: a link to a folder is none
    Date modified = dates::distantPast;
    Date created = dates::distantPast;
    QString ext; ///< lower-cased, without the dot
    bool isHidden = false;

    bool operator==(const FileItem &other) const { return path == other.path; }
};

inline size_t qHash(const FileItem &item, size_t seed = 0)
{
    return qHash(item.path, seed);
}

/// The symbol of an item's kind.
QString iconName(const FileItem &item);

/// The colour of an item's kind, six hexadecimal digits. Its groups are narrower than those of the symbols, and
/// are meant to be: a tiff has a picture's symbol and the grey of unknown files.
QString colorHex(const FileItem &item);
