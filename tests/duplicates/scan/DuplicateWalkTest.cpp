#include "duplicates/scan/DuplicateWalk.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "support/TempHome.h"
#include "Walk.h"

#include <set>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// "1/2/3" for 3.
QString nested(int depth)
{
    QStringList names;
    for (int level = 1; level <= depth; ++level)
        names << QString::number(level);
    return names.join(u'/');
}

/// What a walk finds in the order in which each folder lists its entries, a folder's own at its place.
void collect(const QString &folder, QStringList &found)
{
    const auto names = files::list(folder).value_or(std::vector<QString>());
    for (const QString &name : names) {
        const QString path = folder + u'/' + name;
        if (files::isDirectory(path))
            collect(path, found);
        else
            found << path;
    }
}

} // namespace

TEST(DuplicateWalk, findsFilesInTheOrderInWhichFoldersListThem)
{
    const TempHome temp;
    for (int number = 0; number < 60; ++number) {
        temp.file(u"file%1"_s.arg(number));
        temp.file(u"folder%1/inner"_s.arg(number));
        temp.file(u"folder%1/a/b"_s.arg(number));
    }
    QStringList expected;
    collect(temp.path(), expected);
    EXPECT_EQ(expected.size(), 180);
    EXPECT_EQ(Walk(temp.path()).found(), expected);
}

TEST(DuplicateWalk, findsFilesAtDepthSevenAndNoneAtDepthEight)
{
    const TempHome temp;
    const QString seven = temp.file(nested(7) + u"/seen"_s);
    temp.file(nested(8) + u"/unseen"_s);
    temp.file(nested(10) + u"/unseen"_s);
    const Walk walk(temp.path());
    EXPECT_EQ(walk.found(), QStringList(seven));
    EXPECT_EQ(walk.entered.size(), 8);
    EXPECT_EQ(walk.entered.last(), temp.at(nested(7)));
}

TEST(DuplicateWalk, countsTheDepthFromEachScanPath)
{
    const TempHome temp;
    const QString eight = temp.file(nested(8) + u"/file"_s);
    EXPECT_EQ(Walk(temp.path()).found(), QStringList());
    EXPECT_EQ(Walk(temp.at(u"1"_s)).found(), QStringList(eight));
}

TEST(DuplicateWalk, tellsOfEachFolderVisitedOnce)
{
    const TempHome temp;
    temp.folder(u"a/b"_s);
    temp.folder(u"empty"_s);
    temp.folder(u".hidden"_s);
    temp.folder(u"node_modules"_s);
    temp.file(u"file"_s);
    Walk walk(temp.path(), {u"node_modules"_s});
    EXPECT_EQ(walk.entered.first(), temp.path());
    walk.entered.sort();
    EXPECT_EQ(walk.entered,
              QStringList({temp.path(), temp.at(u"a"_s), temp.at(u"a/b"_s), temp.at(u"empty"_s)}));
}

TEST(DuplicateWalk, passesHiddenFilesAndFoldersOver)
{
    const TempHome temp;
    const QString plain = temp.file(u"plain"_s);
    const QString inner = temp.file(u"folder/a.b."_s);
    temp.file(u".file"_s);
    temp.file(u"..file"_s);
    temp.file(u"..."_s);
    temp.file(u".folder/file"_s);
    temp.link(u".link"_s, u"folder"_s);
    EXPECT_EQ(Walk(temp.path()).foundSet(), std::set<QString>({plain, inner}));
}

TEST(DuplicateWalk, walksAScanPathWithAHiddenName)
{
    const TempHome temp;
    const QString file = temp.file(u".hidden/file"_s);
    EXPECT_EQ(Walk(temp.at(u".hidden"_s)).found(), QStringList(file));
}

TEST(DuplicateWalk, findsFilesOfTheSmallestSizeAndNoneBelow)
{
    const TempHome temp;
    temp.file(u"less"_s, QByteArray(99, 'x'));
    const QString same = temp.file(u"same"_s, QByteArray(100, 'x'));
    const QString more = temp.file(u"more"_s, QByteArray(101, 'x'));
    EXPECT_EQ(Walk(temp.path(), {}, 100).foundSet(), std::set<QString>({same, more}));
}

TEST(DuplicateWalk, findsEmptyFilesForASmallestSizeOfZeroOrLess)
{
    const TempHome temp;
    const QString empty = temp.file(u"empty"_s);
    EXPECT_EQ(Walk(temp.path(), {}, 0).found(), QStringList(empty));
    EXPECT_EQ(Walk(temp.path(), {}, -5).found(), QStringList(empty));
    EXPECT_EQ(Walk(temp.path(), {}, 1).found(), QStringList());
}

TEST(DuplicateWalk, staysOutOfIgnoredFolders)
{
    const TempHome temp;
    temp.file(u"Library/file"_s);
    temp.file(u"Library/Mail/file"_s);
    temp.file(u"a/node_modules/file"_s);
    temp.file(u"a/node_modules/b/file"_s);
    const QString kept = temp.file(u"a/file"_s);
    const QString other = temp.file(u"Library2/file"_s);
    const Walk walk(temp.path(), {temp.at(u"Library"_s), u"node_modules"_s});
    EXPECT_EQ(walk.foundSet(), std::set<QString>({kept, other}));
    EXPECT_EQ(walk.entered.size(), 3);
}

TEST(DuplicateWalk, considersAFileWithTheNameOfAnIgnoredFolder)
{
    const TempHome temp;
    const QString bare = temp.file(u"a/node_modules"_s);
    const QString absolute = temp.file(u"Library"_s);
    EXPECT_EQ(Walk(temp.path(), {u"node_modules"_s, absolute}).foundSet(),
              std::set<QString>({bare, absolute}));
}

TEST(DuplicateWalk, entersAScanPathInsideAnIgnoredFolderAndStaysOutOfDeeperOnes)
{
    const TempHome temp;
    const QString mail = temp.file(u"Library/Mail/file"_s);
    const QString own = temp.file(u"Library/file"_s);
    temp.file(u"Library/Caches/file"_s);
    const QStringList rules = {temp.at(u"Library"_s), temp.at(u"Library/Caches"_s)};
    EXPECT_EQ(Walk(temp.path(), rules).found(), QStringList());
    EXPECT_EQ(Walk(temp.at(u"Library"_s), rules).foundSet(), std::set<QString>({mail, own}));
    EXPECT_EQ(Walk(temp.at(u"Library/Mail"_s), rules).found(), QStringList(mail));
}

TEST(DuplicateWalk, findsNothingInAScanPathWithTheNameOfABareRule)
{
    const TempHome temp;
    temp.file(u"node_modules/file"_s);
    const QString inner = temp.file(u"node_modules/b/file"_s);
    const QStringList rules = {u"node_modules"_s};
    const Walk walk(temp.at(u"node_modules"_s), rules);
    EXPECT_EQ(walk.found(), QStringList());
    EXPECT_EQ(walk.entered, QStringList()) << "a folder that is not walked is not told of";
    EXPECT_EQ(Walk(temp.at(u"node_modules/b"_s), rules).found(), QStringList(inner));
}

TEST(DuplicateWalk, appliesTheRulesToTheTextOfTheScanPathAsItWasGiven)
{
    const TempHome temp;
    temp.file(u"a/file"_s);
    const QString doubled = temp.path() + u"//a/file"_s;
    const QStringList rules = {temp.at(u"a"_s)};
    EXPECT_EQ(Walk(temp.path(), rules).found(), QStringList());
    EXPECT_EQ(Walk(temp.path() + u'/', rules).found(), QStringList(doubled)) << "it reaches it as //a";
    EXPECT_EQ(Walk(temp.path() + u'/', {temp.path() + u"//a"_s}).found(), QStringList());
}

TEST(DuplicateWalk, keepsTheFormOfTheScanPathInWhatItFinds)
{
    const TempHome temp;
    temp.file(u"a/b"_s);
    const Walk slash(temp.at(u"a"_s) + u'/');
    EXPECT_EQ(slash.found(), QStringList(temp.at(u"a"_s) + u"//b"_s));
    EXPECT_EQ(slash.entered, QStringList(temp.at(u"a"_s) + u'/'));
    const QString roundabout = temp.path() + u"/a/../a"_s;
    EXPECT_EQ(Walk(roundabout).found(), QStringList(roundabout + u"/b"_s));
}

TEST(DuplicateWalk, findsNothingInAScanPathThatIsNoFolder)
{
    const TempHome temp;
    const QString missing = temp.at(u"missing"_s);
    const Walk walk(missing);
    EXPECT_EQ(walk.found(), QStringList());
    EXPECT_EQ(walk.entered, QStringList(missing));
    EXPECT_EQ(Walk(temp.file(u"file"_s)).found(), QStringList());
    EXPECT_EQ(Walk(QString()).found(), QStringList());
}

TEST(DuplicateWalk, findsFilesWithNamesOfAnyBytes)
{
    const TempHome temp;
    const QString path = temp.file(paths::fromBytes("\xFF dir\n/\xFE\"'$ ") + u"caf\u00E9"_s, "content");
    const Walk walk(temp.path());
    EXPECT_EQ(walk.found(), QStringList(path));
    EXPECT_EQ(walk.entered.last(), paths::parent(path));
}

TEST(DuplicateWalk, addsToWhatAnotherWalkHasFound)
{
    const TempHome temp;
    const QString inner = temp.file(u"a/b"_s);
    const QString other = temp.file(u"c/d"_s);
    Walk walk(temp.at(u"c"_s));
    walk.run(temp.at(u"a"_s));
    walk.run(temp.at(u"a"_s));
    EXPECT_EQ(walk.found(), QStringList({other, inner, inner}));
}
