#pragma once

#include "base/Paths.h"
#include "duplicates/scan/DuplicateWalk.h"

#include <QStringList>

#include <functional>
#include <set>

#include <gtest/gtest.h>

/// One walk, with all that it found.
class Walk
{
public:
    std::function<bool()> isCancelled = [] { return false; };
    QStringList entered;
    FileTable table;

    Walk() = default;
    Walk(const QString &root, const QStringList &rules = {}, qint64 minFileSize = 0)
    {
        run(root, rules, minFileSize);
    }

    void run(const QString &root, const QStringList &rules = {}, qint64 minFileSize = 0)
    {
        const DuplicateWalk::Hooks hooks{[this] { return isCancelled(); },
                                         [this](const QString &path) { entered << path; }};
        DuplicateWalk(table, minFileSize, hooks).run(root, rules);
    }

    /// In the order of their discovery.
    QStringList found() const
    {
        QStringList all;
        for (const FileTable::File &file : table.files())
            all << paths::fromBytes(table.nativePath(file));
        return all;
    }

    std::set<QString> foundSet() const
    {
        const QStringList all = found();
        EXPECT_EQ(std::set<QString>(all.begin(), all.end()).size(), static_cast<size_t>(all.size()));
        return {all.begin(), all.end()};
    }
};
