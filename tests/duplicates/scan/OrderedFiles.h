#pragma once

#include "support/TempHome.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

/// Folders with a file each: the order of the files is that of the scan paths, whatever the disk lists first.
struct OrderedFiles
{
    TempHome temp;
    QStringList scanPaths;
    QStringList files;

    explicit OrderedFiles(const std::vector<QByteArray> &contents)
    {
        for (size_t number = 0; number < contents.size(); ++number) {
            files << temp.file(QStringLiteral("%1/file").arg(number), contents[number]);
            scanPaths << temp.at(QString::number(number));
        }
    }
};
