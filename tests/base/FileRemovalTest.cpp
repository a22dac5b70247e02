#include "base/FileRemoval.h"

#include "FileChecks.h"
#include "filesystem/InjectedFaults.h"
#include "support/OrdinaryUser.h"
#include "support/TempHome.h"

#include <cerrno>
#include <functional>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace filechecks;

namespace {

int removalFailure(const QString &path)
{
    return failureOf([&path] { files::removeTree(path); });
}

/// The same where something happens right before one of its folders is opened.
int removalFailure(const QString &path, const QString &folder, const std::function<void()> &happening)
{
    const InjectedFaults faults([&](files::Operation operation, const QString &at) {
        if (operation == files::Operation::open && at == folder)
            happening();
        return 0;
    });
    return removalFailure(path);
}

} // namespace

TEST(RemoveTree, removesAFile)
{
    const TempHome temp;
    temp.file(u"kept"_s);
    EXPECT_EQ(removalFailure(temp.file(u"file"_s, "content")), 0);
    EXPECT_EQ(names(temp.path()), std::set<QString>({u"kept"_s}));
}

TEST(RemoveTree, removesAFolderWithAllInIt)
{
    const TempHome temp;
    const QString root = temp.folder(u"root/empty"_s);
    for (const QString &name : hostileNames()) {
        temp.file(u"root/"_s + name);
        temp.file(u"root/deeper/and deeper/"_s + name + u"x"_s.repeated(name.size() < 200 ? 1 : 0));
        temp.folder(u"root/folders/"_s + name);
    }
    ASSERT_EQ(mkfifo(paths::toBytes(temp.at(u"root/pipe"_s)).constData(), 0600), 0);
    EXPECT_EQ(removalFailure(temp.at(u"root"_s)), 0);
    EXPECT_EQ(names(temp.path()), std::set<QString>());
}

TEST(RemoveTree, removesALinkAndNeverWhatItLeadsTo)
{
    const TempHome temp;
    const QString kept = temp.file(u"kept/file"_s, "kept");
    for (const QString &target : {u"kept"_s, kept, u"missing"_s, u"."_s})
        EXPECT_EQ(removalFailure(temp.link(u"link"_s, target)), 0);
    EXPECT_EQ(removalFailure(temp.link(u"link"_s, u"kept"_s) + u"//"_s), 0)
        << "a slash would lead through it";
    EXPECT_EQ(names(temp.path()), std::set<QString>({u"kept"_s}));
    EXPECT_EQ(content(kept), "kept");
}

TEST(RemoveTree, removesLinksInsideAndNeverWhatTheyLeadTo)
{
    const TempHome temp;
    const QString kept = temp.file(u"kept/folder/file"_s, "kept");
    temp.link(u"root/a/to folder"_s, temp.at(u"kept"_s));
    temp.link(u"root/a/to file"_s, kept);
    temp.link(u"root/a/up"_s, u"../.."_s);
    temp.link(u"root/nowhere"_s, u"/nothing/here"_s);
    EXPECT_EQ(removalFailure(temp.at(u"root"_s)), 0);
    EXPECT_EQ(names(temp.path()), std::set<QString>({u"kept"_s}));
    EXPECT_EQ(content(kept), "kept");
}

TEST(RemoveTree, goesThroughALinkAboveTheEntry)
{
    const TempHome temp;
    temp.file(u"real/folder/file"_s);
    temp.file(u"real/kept"_s);
    temp.link(u"link"_s, u"real"_s);
    EXPECT_EQ(removalFailure(temp.at(u"link/folder"_s)), 0);
    EXPECT_EQ(names(temp.at(u"real"_s)), std::set<QString>({u"kept"_s}));
    EXPECT_EQ(names(temp.path()), std::set<QString>({u"real"_s, u"link"_s}));
}

TEST(RemoveTree, refusesWhatNamesNoEntryOfAFolder)
{
    const TempHome temp;
    temp.file(u"folder/file"_s);
    for (const QString &end : {u"/."_s, u"/.."_s, u"/./"_s, u"/folder/..//"_s})
        EXPECT_EQ(removalFailure(temp.path() + end), EINVAL) << end.toStdString();
    EXPECT_EQ(removalFailure(u"/"_s), EINVAL);
    EXPECT_EQ(removalFailure(temp.at(u"folder"_s) + QChar::Null + u"x"_s), EINVAL);
    EXPECT_EQ(removalFailure(QString()), ENOENT);
    EXPECT_EQ(names(temp.at(u"folder"_s)), std::set<QString>({u"file"_s}));
}

TEST(RemoveTree, saysWhenNothingIsThere)
{
    const TempHome temp;
    EXPECT_EQ(removalFailure(temp.at(u"missing"_s)), ENOENT);
    EXPECT_EQ(removalFailure(paths::join(temp.file(u"file"_s), u"below"_s)), ENOTDIR);
}

TEST(RemoveTree, goesOnAfterWhatCannotBeRemovedAndTellsOfIt)
{
    const TempHome temp;
    const QString stays = temp.file(u"root/b/stays"_s);
    for (const QString &name : {u"root/a"_s, u"root/b/a"_s, u"root/b/z"_s, u"root/c/d"_s, u"root/z"_s})
        temp.file(name);
    {
        const InjectedFaults faults(files::Operation::remove, stays);
        EXPECT_EQ(removalFailure(temp.at(u"root"_s)), EACCES);
    }
    EXPECT_EQ(names(temp.at(u"root"_s)), std::set<QString>({u"b"_s}));
    EXPECT_EQ(names(temp.at(u"root/b"_s)), std::set<QString>({u"stays"_s}));
}

TEST(RemoveTree, leavesAFileThatCannotBeRemoved)
{
    const TempHome temp;
    const QString file = temp.file(u"file"_s);
    const InjectedFaults faults(files::Operation::remove, file);
    EXPECT_EQ(removalFailure(file), EACCES);
    EXPECT_EQ(names(temp.path()), std::set<QString>({u"file"_s}));
}

TEST(RemoveTree, opensUpFoldersOfTheUsersOwn)
{
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const TempHome temp;
        temp.file(u"root/read-only/deeper/file"_s);
        temp.file(u"root/unreadable/file"_s);
        temp.file(u"root/closed/file"_s);
        temp.folder(u"root/closed and empty"_s);
        temp.setMode(u"root/read-only/deeper"_s, 0500);
        temp.setMode(u"root/read-only"_s, 0500);
        temp.setMode(u"root/unreadable"_s, 0300);
        temp.setMode(u"root/closed"_s, 0);
        temp.setMode(u"root/closed and empty"_s, 0);
        temp.setMode(u"root"_s, 0500);
        EXPECT_EQ(removalFailure(temp.at(u"root"_s)), 0);
        EXPECT_EQ(names(temp.path()), std::set<QString>());
    }));
}

TEST(RemoveTree, leavesWhatAFolderOfAnotherUserHoldsAndTakesTheRest)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "An ordinary user has nothing of another user's.";
    const TempHome temp;
    temp.file(u"home/root/theirs/stays"_s);
    temp.folder(u"home/root/theirs too"_s);
    temp.file(u"home/root/goes/file"_s);
    for (const QString &name :
         {u""_s, u"home"_s, u"home/root"_s, u"home/root/goes"_s, u"home/root/goes/file"_s})
        ASSERT_EQ(chown(paths::toBytes(temp.at(name)).constData(), 65534, 65534), 0);
    EXPECT_TRUE(holdsForOrdinaryUser([&temp] {
        EXPECT_EQ(removalFailure(temp.at(u"home/root"_s)), EACCES);
        EXPECT_EQ(names(temp.at(u"home/root"_s)), std::set<QString>({u"theirs"_s}));
        EXPECT_EQ(names(temp.at(u"home/root/theirs"_s)), std::set<QString>({u"stays"_s}));
    }));
}

TEST(RemoveTree, leavesAFolderWholeThatCouldNotGoItself)
{
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const TempHome temp;
        temp.file(u"read-only/root/stays"_s);
        temp.setMode(u"read-only"_s, 0500);
        EXPECT_EQ(removalFailure(temp.at(u"read-only/root"_s)), EACCES);
        EXPECT_EQ(names(temp.at(u"read-only/root"_s)), std::set<QString>({u"stays"_s}));
        temp.setMode(u"read-only"_s, 0700);
    }));
}

TEST(RemoveTree, removesATreeThatIsDeeperThanFilesMayBeOpenAndPathsLong)
{
    const TempHome temp;
    const QByteArray name(200, 'd');
    int folder = open(paths::toBytes(temp.folder(u"root"_s)).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < 100; ++level) {
        ASSERT_EQ(mkdirat(folder, name.constData(), 0700), 0);
        const int next = openat(folder, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        close(folder);
        folder = next;
    }
    close(folder);
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &usual), 0);
    const rlimit few = {50, usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
    EXPECT_EQ(removalFailure(temp.at(u"root"_s)), 0);
    setrlimit(RLIMIT_NOFILE, &usual);
    EXPECT_EQ(names(temp.path()), std::set<QString>());
}

TEST(RemoveTree, neverFollowsALinkThatHasTakenAFoldersPlace)
{
    const TempHome temp;
    const QString kept = temp.file(u"kept/file"_s, "kept");
    const QString folder = paths::parent(temp.file(u"root/folder/file"_s));
    const auto happening = [&] {
        files::move(folder, temp.at(u"moved"_s));
        temp.link(u"root/folder"_s, temp.at(u"kept"_s));
    };
    EXPECT_EQ(removalFailure(temp.at(u"root"_s), folder, happening), ENOTDIR);
    EXPECT_EQ(content(kept), "kept");
    EXPECT_EQ(names(temp.at(u"moved"_s)), std::set<QString>({u"file"_s}));
}

TEST(RemoveTree, leavesWhatIsMountedAtAFolderMeanwhile)
{
    const TempHome temp;
    const QByteArray part = paths::toBytes(paths::parent(temp.file(u"kept/file"_s, "kept")));
    const QString folder = paths::parent(temp.file(u"root/folder/file"_s));
    const QByteArray place = paths::toBytes(folder);
    bool isMounted = false;
    const auto mountPart = [&] {
        isMounted = mount(part.constData(), place.constData(), nullptr, MS_BIND, nullptr) == 0;
    };
    const auto mountVolume = [&] {
        isMounted = mount("none", place.constData(), "tmpfs", 0, nullptr) == 0;
        temp.file(u"root/folder/file"_s, "kept");
    };
    for (const auto &happening : {std::function<void()>(mountPart), std::function<void()>(mountVolume)}) {
        const int failure = removalFailure(temp.at(u"root"_s), folder, happening);
        if (!isMounted)
            GTEST_SKIP() << "Nothing can be mounted here.";
        EXPECT_EQ(failure, EXDEV);
        EXPECT_EQ(content(paths::join(folder, u"file"_s)), "kept");
        EXPECT_EQ(umount2(place.constData(), MNT_DETACH), 0);
    }
    EXPECT_EQ(names(folder), std::set<QString>({u"file"_s})) << "nor does what the mount has hidden go";
}

TEST(RemoveTree, opensUpNothingThatIsMountedAtAFolderMeanwhile)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "An ordinary user can mount nothing.";
    const TempHome temp;
    temp.file(u"kept/file"_s);
    temp.file(u"root/folder/file"_s);
    for (const QString &name : {u""_s, u"kept"_s, u"root"_s, u"root/folder"_s})
        ASSERT_EQ(chown(paths::toBytes(temp.at(name)).constData(), 65534, 65534), 0);
    temp.setMode(u"kept"_s, 0);
    const QByteArray part = paths::toBytes(temp.at(u"kept"_s));
    const QByteArray place = paths::toBytes(temp.at(u"root/folder"_s));
    bool isMounted = false;
    // Permissions bind whoever is an ordinary user for a moment.
    ASSERT_EQ(seteuid(65534), 0);
    const int failure = removalFailure(temp.at(u"root"_s), temp.at(u"root/folder"_s), [&] {
        EXPECT_EQ(seteuid(0), 0);
        isMounted = mount(part.constData(), place.constData(), nullptr, MS_BIND, nullptr) == 0;
        EXPECT_EQ(seteuid(65534), 0);
    });
    ASSERT_EQ(seteuid(0), 0);
    if (!isMounted)
        GTEST_SKIP() << "Nothing can be mounted here.";
    struct stat status = {};
    EXPECT_EQ(stat(part.constData(), &status), 0);
    EXPECT_EQ(umount2(place.constData(), MNT_DETACH), 0);
    EXPECT_EQ(failure, EACCES);
    EXPECT_EQ(status.st_mode & ALLPERMS, 0U);
}

TEST(RemoveTree, stopsWhenTheFolderThatItEmptiesIsMovedAway)
{
    const TempHome temp;
    const QString trigger = temp.file(u"root/a/b/trigger"_s);
    temp.file(u"elsewhere/kept"_s);
    {
        const InjectedFaults faults([&](files::Operation operation, const QString &path) {
            if (operation == files::Operation::remove && path == trigger)
                files::move(temp.at(u"root/a/b"_s), temp.at(u"elsewhere/b"_s));
            return 0;
        });
        EXPECT_EQ(removalFailure(temp.at(u"root"_s)), EBUSY);
    }
    EXPECT_EQ(names(temp.at(u"elsewhere"_s)), std::set<QString>({u"kept"_s, u"b"_s}));
    EXPECT_EQ(names(temp.at(u"root"_s)), std::set<QString>({u"a"_s}));
}
