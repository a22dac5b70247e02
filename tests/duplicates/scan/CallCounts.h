#pragma once

#include "filesystem/InjectedFaults.h"

#include <QStringList>

#include <map>
#include <utility>

/// Counts the calls of base/Files while it lives, and may make some fail.
class CallCounts
{
public:
    explicit CallCounts(InjectedFaults::Faults faults = {})
        : faults_([this, faults = std::move(faults)](files::Operation operation, const QString &path) {
            count(operation, path);
            return faults ? faults(operation, path) : 0;
        })
    {
    }

    std::map<QString, int> questions; ///< for attributes, by path
    QStringList listed;               ///< folders, in order
    QStringList opened;               ///< files, in order
    QStringList readFiles;            ///< likewise, each read of them

private:
    void count(files::Operation operation, const QString &path)
    {
        if (operation == files::Operation::attributes)
            ++questions[path];
        if (operation == files::Operation::list)
            listed << path;
        if (operation == files::Operation::open)
            opened << path;
        if (operation == files::Operation::read)
            readFiles << path;
    }

    InjectedFaults faults_;
};
