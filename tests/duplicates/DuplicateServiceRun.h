#pragma once

#include "duplicates/DuplicateServices.h"
#include "filesystem/InjectedFaults.h"

#include <functional>
#include <memory>

#include <gtest/gtest.h>

/// A duplicate finder for which files of any size count.
class DuplicateServiceRun : public testing::Test
{
protected:
    DuplicateServices services;
    TestPlatform &test = services.test;
    DuplicateService &duplicates = services.duplicates;

    void SetUp() override { duplicates.setMinFileSize(0); }

    /// The published fields of a scan as a text; paths are told from the home folder on.
    QString fields() const
    {
        QString path = duplicates.currentPath();
        if (path.startsWith(test.home + u'/'))
            path = path.mid(test.home.size() + 1);
        return QStringLiteral("%1 %2 '%3' groups %4 failures %5")
            .arg(duplicates.isScanning() ? "scans" : "rests")
            .arg(duplicates.progress())
            .arg(path)
            .arg(duplicates.groups().size())
            .arg(duplicates.hashFailureCount());
    }

    /// The fields after each of the blocks that wait on the main queue.
    QStringList stepped()
    {
        QStringList seen;
        while (test.mainQueue.step())
            seen << fields();
        return seen;
    }

    /// A scan up to the end of its job; all that it has told waits on the main queue.
    void runJob()
    {
        duplicates.scan();
        test.mainQueue.run(); // what the access monitor has taken note of
        test.workQueue.run();
    }

    /// Calls `action` when an operation on a path below the home folder is about to happen.
    std::unique_ptr<InjectedFaults> on(files::Operation operation, const QString &path,
                                       const std::function<void()> &action) const
    {
        return std::make_unique<InjectedFaults>(
            [=, at = services.inHome(path)](files::Operation asked, const QString &asks) {
                if (asked == operation && asks == at)
                    action();
                return 0;
            });
    }

    std::unique_ptr<InjectedFaults> cancelOn(files::Operation operation, const QString &path)
    {
        return on(operation, path, [this] { duplicates.setCancelRequested(true); });
    }
};
