#pragma once

#include <QString>
#include <QUuid>

#include <vector>

/// A named share of the disk, as a bar or a map shows it.
struct StorageCategory
{
    QUuid id; ///< fresh at each creation
    QString name;
    qint64 size = 0; ///< bytes
    QString color;   ///< six hexadecimal digits
    QString icon;    ///< symbol name
    std::vector<StorageCategory> children;
};
