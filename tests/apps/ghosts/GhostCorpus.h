#pragma once

#include "apps/ghosts/InstalledWords.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

/// The entries of corpus/, which a reader can check line by line.
namespace ghostcorpus {

struct Entry
{
    QString folder; ///< below the Library
    QString entry;
    QString verdict; ///< "spared", "ghost" or "warned"
    QString why;
    QString owner;
};

/// What the entries are judged against.
struct Installed
{
    InstalledWords words;
    QSet<QString> known; ///< identifiers that the system knows
};

std::vector<Entry> entries();
Installed installed();

/// The lines of a table that are neither empty nor a remark, each in its columns.
std::vector<QStringList> rows(const QString &file);

} // namespace ghostcorpus
