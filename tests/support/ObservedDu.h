#pragma once

#include "base/Files.h"
#include "base/Paths.h"
#include "support/TestPlatform.h"

#include <algorithm>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

/// A `du` of which each run tells that it has begun.
class ObservedDu
{
public:
    /// What a run does that is to hang.
    static constexpr const char *hang = "read -r line <\"$never\"\n";

    /// `then` is what a run does behind that; `$never` is a pipe that never has a writer.
    ObservedDu(TestPlatform &test, const QByteArray &then)
        : pids_(test.temp.at("pids"))
    {
        const QByteArray begun = paths::toBytes(test.temp.at("begun"));
        const QByteArray never = paths::toBytes(test.temp.at("never"));
        EXPECT_EQ(mkfifo(begun.constData(), 0600), 0);
        EXPECT_EQ(mkfifo(never.constData(), 0600), 0);
        begun_ = open(begun.constData(), O_RDWR | O_CLOEXEC); // for writing too, so that it never ends
        EXPECT_NE(begun_, -1);
        test.useDu("never='" + never + "'\necho $$ >>'" + paths::toBytes(pids_) + "'\necho \"$2\" >'" + begun
                   + "'\n" + then);
    }
    ~ObservedDu() { close(begun_); }
    ObservedDu(const ObservedDu &) = delete;
    ObservedDu &operator=(const ObservedDu &) = delete;

    /// Waits until another run has begun and gives the path that it measures.
    QString awaitBegin() const
    {
        QByteArray line;
        char byte = 0;
        while (read(begun_, &byte, 1) == 1 && byte != '\n')
            line += byte;
        return paths::fromBytes(line);
    }

    /// The runs there were, and how many of them are still in the process table, ended ones that nobody has
    /// collected included.
    std::pair<qsizetype, qsizetype> runsAndLeftovers() const
    {
        const QByteArrayList pids =
            files::readPrefix(pids_, 1 << 20).value_or(QByteArray()).trimmed().split('\n');
        const auto isThere = [](const QByteArray &pid) { return kill(pid.toInt(), 0) == 0; };
        return {pids.size(), std::count_if(pids.begin(), pids.end(), isThere)};
    }

private:
    QString pids_;
    int begun_ = -1;
};
