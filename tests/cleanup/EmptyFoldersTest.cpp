#include "cleanup/EmptyFolders.h"

#include "base/Paths.h"
#include "filesystem/InjectedFaults.h"
#include "support/TempHome.h"

#include <cerrno>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class EmptyFoldersTest : public testing::Test
{
protected:
    /// The empty folders below folders of the test's, from its own folder on.
    QStringList found(const QStringList &roots) const
    {
        QStringList all;
        for (const QString &root : roots)
            all << temp_.at(root);
        QStringList relative;
        for (const QString &path : emptyfolders::find(all))
            relative << path.mid(temp_.path().size() + 1);
        return relative;
    }

    QStringList sortedBelowRoot() const
    {
        QStringList all = found({u"root"_s});
        all.sort();
        return all;
    }

    const TempHome temp_;
};

} // namespace

TEST_F(EmptyFoldersTest, findsLeavesOnly)
{
    temp_.folder(u"root/empty"_s);
    temp_.folder(u"root/holds an empty one/inner"_s);
    temp_.file(u"root/full/file"_s);
    temp_.folder(u"root/full/empty"_s);
    EXPECT_EQ(sortedBelowRoot(),
              (QStringList{u"root/empty"_s, u"root/full/empty"_s, u"root/holds an empty one/inner"_s}));
}

TEST_F(EmptyFoldersTest, neverFindsARoot)
{
    temp_.folder(u"root"_s);
    EXPECT_EQ(sortedBelowRoot(), QStringList());
    temp_.file(u"root/.DS_Store"_s);
    EXPECT_EQ(sortedBelowRoot(), QStringList());
}

TEST_F(EmptyFoldersTest, takesWhatTheDesktopLeavesForNoContent)
{
    for (const QString &name : {u".DS_Store"_s, u".localized"_s, u"Icon\r"_s, u"Icon\r\r"_s})
        temp_.file(u"root/folder with "_s + name + u'/' + name);
    temp_.file(u"root/all of them/.DS_Store"_s);
    temp_.file(u"root/all of them/Icon\r"_s);
    for (const QString &name : {u".ds_store"_s, u"Icon"_s, u"Icon\r\r\r"_s, u".hidden"_s})
        temp_.file(u"root/content "_s + name + u'/' + name);
    EXPECT_EQ(sortedBelowRoot().size(), 5);
    EXPECT_TRUE(sortedBelowRoot().contains(u"root/all of them"_s));
}

TEST_F(EmptyFoldersTest, findsNoHiddenFolderAndNoneInsideOne)
{
    temp_.folder(u"root/.hidden"_s);
    temp_.folder(u"root/.hidden too/empty"_s);
    EXPECT_EQ(sortedBelowRoot(), QStringList());
}

TEST_F(EmptyFoldersTest, entersNoFolderOfATool)
{
    for (const QString &name :
         {u".git"_s, u".svn"_s, u"node_modules"_s, u".build"_s, u"__pycache__"_s, u"DerivedData"_s}) {
        temp_.folder(u"root/project/"_s + name + u"/empty"_s);
        temp_.folder(u"root/empty ones/"_s + name);
    }
    temp_.folder(u"root/node_modules2"_s);
    EXPECT_EQ(sortedBelowRoot(), QStringList(u"root/node_modules2"_s));
}

TEST_F(EmptyFoldersTest, entersARootWhateverItsName)
{
    temp_.folder(u".hidden/empty"_s);
    temp_.folder(u"node_modules/empty"_s);
    EXPECT_EQ(found({u".hidden"_s, u"node_modules"_s}),
              (QStringList{u".hidden/empty"_s, u"node_modules/empty"_s}));
}

TEST_F(EmptyFoldersTest, looksIntoFoldersOfFolders)
{
    temp_.folder(u"root/Icon\r/empty"_s); // its name is no content, yet it is a folder
    EXPECT_EQ(sortedBelowRoot(), QStringList(u"root/Icon\r/empty"_s));
    temp_.folder(u"root/a/Icon\r/empty"_s);
    EXPECT_EQ(sortedBelowRoot(), (QStringList{u"root/Icon\r/empty"_s, u"root/a"_s}));
}

TEST_F(EmptyFoldersTest, goesSixFoldersDeep)
{
    temp_.folder(u"root/1/2/3/4/5/6"_s);
    temp_.folder(u"root/a/2/3/4/5/6/7"_s);
    EXPECT_EQ(sortedBelowRoot(), QStringList(u"root/1/2/3/4/5/6"_s));
}

TEST_F(EmptyFoldersTest, walksItsRootsInTheirOrder)
{
    temp_.folder(u"z/empty"_s);
    temp_.folder(u"a/empty"_s);
    EXPECT_EQ(found({u"z"_s, u"missing"_s, u"a"_s}), (QStringList{u"z/empty"_s, u"a/empty"_s}));
}

TEST_F(EmptyFoldersTest, findsNothingTwiceWhereOneRootLiesInAnother)
{
    temp_.folder(u"outer/inner/empty"_s);
    temp_.folder(u"outer/empty"_s);
    EXPECT_EQ(found({u"outer"_s, u"outer/inner"_s}), (QStringList{u"outer/empty"_s, u"outer/inner/empty"_s}));
    EXPECT_EQ(found({u"outer/inner"_s, u"outer"_s}), (QStringList{u"outer/inner/empty"_s, u"outer/empty"_s}));
}

TEST_F(EmptyFoldersTest, takesNoOtherRootForAnEmptyFolder)
{
    temp_.folder(u"outer/inner"_s);
    EXPECT_EQ(found({u"outer"_s, u"outer/inner"_s}), QStringList());
}

TEST_F(EmptyFoldersTest, looksThroughALinkInsideItsRoot)
{
    temp_.folder(u"root/.store/empty"_s);
    temp_.file(u"root/.store/file"_s);
    temp_.link(u"root/link"_s, u".store"_s);
    temp_.folder(u"root/.one"_s);
    temp_.link(u"root/to an empty one"_s, u".one"_s);
    EXPECT_EQ(sortedBelowRoot(), (QStringList{u"root/link/empty"_s, u"root/to an empty one"_s}));
}

TEST_F(EmptyFoldersTest, neverLeavesItsRoot)
{
    temp_.folder(u"elsewhere/empty"_s);
    temp_.link(u"root/out"_s, temp_.at(u"elsewhere"_s));
    temp_.link(u"root/to an empty one"_s, u"../elsewhere/empty"_s);
    temp_.link(u"root/nowhere"_s, u"missing"_s);
    EXPECT_EQ(sortedBelowRoot(), QStringList());
}

TEST_F(EmptyFoldersTest, looksThroughARootThatIsALink)
{
    temp_.folder(u"real/empty"_s);
    temp_.link(u"root"_s, u"real"_s);
    EXPECT_EQ(sortedBelowRoot(), QStringList(u"root/empty"_s));
}

TEST_F(EmptyFoldersTest, endsInCirclesOfLinks)
{
    for (int number = 0; number < 40; ++number) {
        temp_.link(u"root/a/to b %1"_s.arg(number), u"../b"_s);
        temp_.link(u"root/b/to a %1"_s.arg(number), u"../a"_s);
        temp_.link(u"root/b/up %1"_s.arg(number), u"../.."_s);
    }
    temp_.folder(u"root/a/empty"_s);
    EXPECT_EQ(sortedBelowRoot().size(), 41) << "by itself and by each of the links to its folder";
}

TEST_F(EmptyFoldersTest, passesOverWhatCannotBeListed)
{
    temp_.folder(u"root/locked/empty"_s);
    temp_.folder(u"root/seen"_s);
    {
        const InjectedFaults faults(files::Operation::list, temp_.at(u"root/locked"_s));
        EXPECT_EQ(sortedBelowRoot(), QStringList(u"root/seen"_s));
    }
    const InjectedFaults faults([this](files::Operation operation, const QString &path) {
        return operation == files::Operation::next && path == temp_.at(u"root/locked"_s) ? EIO : 0;
    });
    EXPECT_EQ(sortedBelowRoot(), QStringList(u"root/seen"_s)) << "nor what can't be listed to its end";
}

TEST_F(EmptyFoldersTest, asksWhereTheListingDoesNotTellKinds)
{
    temp_.folder(u"root/a/empty"_s);
    temp_.file(u"root/a/file"_s);
    const InjectedFaults faults([](files::Operation operation, const QString &) {
        return operation == files::Operation::kind ? ENOTSUP : 0;
    });
    EXPECT_EQ(sortedBelowRoot(), QStringList(u"root/a/empty"_s));
}

TEST_F(EmptyFoldersTest, findsFoldersOfAnyName)
{
    const QString name = u"new\nline ' "_s + paths::fromBytes("\xFF");
    temp_.folder(u"root/"_s + name);
    EXPECT_EQ(sortedBelowRoot(), QStringList(u"root/"_s + name));
}
