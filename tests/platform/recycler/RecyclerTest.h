#pragma once

#include "platform/linux/LinuxRecycler.h"
#include "support/Fakes.h"
#include "TrashHome.h"

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>
#include <sys/stat.h>

/// A home folder without anything in it, a recycler, and looks at what became of items.
class RecyclerTest : public ::testing::Test
{
protected:
    /// What must be the same of an entry that has come back.
    struct Traits
    {
        QByteArray content; ///< of a link, where it leads
        mode_t mode = 0;
        timespec modified = {};

        bool operator==(const Traits &other) const;
    };

    RecyclerTest();

    /// Below the home folder.
    static QString at(const QString &relative) { return TrashHome::path() + u'/' + relative; }

    /// Makes a file or folder below the home folder, and the folders above it. Gives its path.
    static QString makeFile(const QString &relative, const QByteArray &content = "content");
    static QString makeFolder(const QString &relative);

    /// Makes a symbolic link below the home folder. Gives its path.
    static QString makeLink(const QString &relative, const QString &target);

    /// Sets the permissions and a modification date long ago, with nanoseconds.
    static void age(const QString &path, mode_t mode);

    /// True when an entry is there; a link counts itself.
    static bool isThere(const QString &path);

    static Traits traits(const QString &path);

    /// The names in a folder in order; none when it isn't there.
    static QStringList names(const QString &folder);

    /// Moves items to the Trash and waits for the end.
    Recycler::Result recycle(const QStringList &paths);

    /// Moves one to the Trash and expects that it went.
    void expectRecycled(const QString &path);

    FakeSystemLog log_;
    LinuxRecycler recycler_{QStringLiteral("/nothing"), QStringLiteral("/nothing"), log_};
};
