#include "base/OpenFolder.h"

#include "base/FileRemoval.h"
#include "FileChecks.h"
#include "support/OrdinaryUser.h"
#include "support/TempHome.h"

#include <cerrno>

#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace filechecks;

namespace {

int removalFailure(const files::OpenFolder &folder, const QString &relative)
{
    return failureOf([&] { files::removeTree(folder, relative); });
}

} // namespace

TEST(OpenFolder, isNoLinkAndLiesBehindOne)
{
    const TempHome temp;
    temp.folder(u"real/inner"_s);
    temp.link(u"link"_s, u"real"_s);
    temp.link(u"real/inner link"_s, u"inner"_s);
    EXPECT_EQ(failureOf([&] { files::OpenFolder(temp.at(u"link"_s)); }), ENOTDIR);
    EXPECT_EQ(failureOf([&] { files::OpenFolder(temp.at(u"link/"_s)); }), ENOTDIR);
    const files::OpenFolder inner = files::OpenFolder(temp.at(u"link/inner"_s));
    EXPECT_EQ(inner.path(), temp.at(u"link/inner"_s));
    const files::OpenFolder real(temp.at(u"real/"_s));
    EXPECT_EQ(failureOf([&] { real.inner(u"inner link"_s); }), ENOTDIR);
    EXPECT_EQ(real.inner(u"inner"_s).path(), temp.at(u"real/inner"_s));
}

TEST(OpenFolder, knowsItsEntriesWhereverItIs)
{
    const TempHome temp;
    const QString file = temp.file(u"folder/file"_s);
    const files::OpenFolder folder(temp.at(u"folder"_s));
    EXPECT_EQ(folder.find(u"file"_s)->identity, files::identity(file));
    EXPECT_EQ(folder.find(u"file"_s)->modified, files::attributes(file)->modified);
    files::move(temp.at(u"folder"_s), temp.at(u"moved"_s));
    temp.folder(u"folder"_s);
    EXPECT_FALSE(folder.isGone(u"file"_s));
    folder.remove(u"file"_s);
    EXPECT_TRUE(folder.isGone(u"file"_s));
    EXPECT_FALSE(folder.find(u"file"_s));
    EXPECT_EQ(names(temp.at(u"moved"_s)), std::set<QString>());
}

TEST(OpenFolder, takesNothingForGoneThatItCannotAsk)
{
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const TempHome temp;
        temp.file(u"folder/file"_s);
        const files::OpenFolder folder(temp.at(u"folder"_s));
        temp.setMode(u"folder"_s, 0400);
        EXPECT_FALSE(folder.isGone(u"file"_s));
        EXPECT_FALSE(folder.isGone(u"missing"_s));
        EXPECT_FALSE(folder.find(u"file"_s));
        temp.setMode(u"folder"_s, 0700);
    }));
}

TEST(OpenFolder, hasNothingThatIsNoNameOfAnEntry)
{
    const TempHome temp;
    temp.file(u"folder/inner/file"_s);
    temp.file(u"file"_s);
    const files::OpenFolder folder(temp.at(u"folder"_s));
    for (const QString &name : {QString(), u"."_s, u".."_s, u"inner/file"_s, u"../file"_s, temp.at(u"file"_s),
                                u"inner"_s + QChar::Null}) {
        EXPECT_FALSE(folder.find(name)) << name.toStdString();
        EXPECT_FALSE(folder.isGone(name)) << name.toStdString();
        EXPECT_NE(failureOf([&] { folder.inner(name); }), 0) << name.toStdString();
        EXPECT_NE(failureOf([&] { folder.remove(name); }), 0) << name.toStdString();
    }
    EXPECT_EQ(names(temp.path()), std::set<QString>({u"folder"_s, u"file"_s}));
}

TEST(RemoveTreeBelow, removesEntriesAtAnyDepth)
{
    const TempHome temp;
    for (const QString &name : hostileNames())
        temp.file(u"folder/"_s + name + u"/inner/file"_s);
    const files::OpenFolder folder(temp.at(u"folder"_s));
    for (const QString &name : hostileNames()) {
        EXPECT_EQ(removalFailure(folder, name + u"/inner"_s), 0);
        EXPECT_EQ(names(temp.at(u"folder/"_s + name)), std::set<QString>());
        EXPECT_EQ(removalFailure(folder, name), 0);
    }
    EXPECT_EQ(names(temp.at(u"folder"_s)), std::set<QString>());
    EXPECT_EQ(removalFailure(folder, u"missing"_s), ENOENT);
}

TEST(RemoveTreeBelow, followsNoLinkOnTheWay)
{
    const TempHome temp;
    const QString kept = temp.file(u"kept/inner/file"_s);
    temp.link(u"folder/link"_s, temp.at(u"kept"_s));
    temp.link(u"folder/deep/link"_s, temp.at(u"kept"_s));
    const files::OpenFolder folder(temp.at(u"folder"_s));
    EXPECT_EQ(removalFailure(folder, u"link/inner"_s), ENOTDIR);
    EXPECT_EQ(removalFailure(folder, u"deep/link/inner"_s), ENOTDIR);
    EXPECT_EQ(removalFailure(folder, u"deep/link"_s), 0) << "a link goes itself";
    EXPECT_TRUE(files::exists(kept));
}

TEST(RemoveTreeBelow, refusesWhatDoesNotLieBelow)
{
    const TempHome temp;
    temp.file(u"kept"_s);
    temp.file(u"folder/inner/kept"_s);
    const files::OpenFolder folder(temp.at(u"folder"_s));
    for (const QString &path : {QString(), u"."_s, u".."_s, u"../kept"_s, u"inner/.."_s,
                                u"inner/../../kept"_s, u"/kept"_s, u"inner/"_s})
        EXPECT_NE(removalFailure(folder, path), 0) << path.toStdString();
    EXPECT_EQ(names(temp.path()), std::set<QString>({u"folder"_s, u"kept"_s}));
    EXPECT_EQ(names(temp.at(u"folder/inner"_s)), std::set<QString>({u"kept"_s}));
}

TEST(RemoveTreeBelow, goesDeeperThanFilesMayBeOpen)
{
    const TempHome temp;
    const QString relative = u"d/"_s.repeated(100) + u"file"_s;
    temp.file(u"folder/"_s + relative);
    const files::OpenFolder folder(temp.at(u"folder"_s));
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &usual), 0);
    const rlimit few = {50, usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
    EXPECT_EQ(removalFailure(folder, relative), 0);
    setrlimit(RLIMIT_NOFILE, &usual);
    EXPECT_FALSE(files::exists(temp.at(u"folder/"_s + relative)));
}
