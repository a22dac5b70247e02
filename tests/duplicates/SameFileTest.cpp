#include "duplicates/SameFile.h"

#include "base/Paths.h"
#include "support/TempHome.h"

#include <filesystem>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using samefile::Kind;

namespace {

/// Files below a folder of the test's own, with real links among them.
struct SameFileTest : public testing::Test
{
    const TempHome temp;
    samefile::Folders folders;

    std::vector<QString> at(const QStringList &relative) const
    {
        std::vector<QString> paths;
        for (const QString &path : relative)
            paths.push_back(temp.at(path));
        return paths;
    }
    Kind among(const QStringList &relative) { return samefile::among(at(relative), folders); }
    qint64 countOfKept(const QStringList &going, const QStringList &kept)
    {
        return samefile::countOfKept(at(going), at(kept), folders);
    }

    void hardLink(const QString &file, const QString &name) const
    {
        std::filesystem::create_hard_link(paths::toBytes(temp.at(file)).toStdString(),
                                          paths::toBytes(temp.at(name)).toStdString());
    }
    static void remove(const QString &path) { std::filesystem::remove(paths::toBytes(path).toStdString()); }
};

} // namespace

TEST_F(SameFileTest, equalFilesAreFilesOfTheirOwn)
{
    temp.file(u"a/x"_s, "equal");
    temp.file(u"b/x"_s, "equal");
    temp.file(u"b/y"_s, "equal");
    EXPECT_EQ(among({u"a/x"_s, u"b/x"_s, u"b/y"_s}), Kind::none);
    EXPECT_EQ(countOfKept({u"b/x"_s, u"b/y"_s}, {u"a/x"_s}), 0);
}

TEST_F(SameFileTest, aPathThroughALinkToAFolderLeadsToTheVeryEntry)
{
    temp.file(u"real/deep/x"_s);
    temp.file(u"copy/x"_s);
    temp.link(u"way"_s, temp.at(u"real"_s));
    temp.link(u"other way"_s, u"way/deep"_s); // a link through a link, told relative to its place
    EXPECT_EQ(among({u"copy/x"_s, u"real/deep/x"_s, u"way/deep/x"_s}), Kind::oneEntry);
    EXPECT_EQ(among({u"other way/x"_s, u"copy/x"_s, u"way/deep/x"_s}), Kind::oneEntry);
    EXPECT_EQ(among({u"copy/x"_s, u"other way/x"_s}), Kind::none);
    EXPECT_EQ(countOfKept({u"way/deep/x"_s, u"other way/x"_s, u"copy/x"_s}, {u"real/deep/x"_s}), 2);
}

TEST_F(SameFileTest, aPathThatIsListedTwiceIsOneEntry)
{
    temp.file(u"a/x"_s);
    EXPECT_EQ(among({u"a/x"_s, u"a/x"_s}), Kind::oneEntry);
    EXPECT_EQ(countOfKept({u"a/x"_s}, {u"a/x"_s}), 1);
}

TEST_F(SameFileTest, hardLinksAreEntriesOfTheirOwn)
{
    temp.file(u"a/x"_s);
    temp.folder(u"b"_s);
    hardLink(u"a/x"_s, u"b/x"_s); // of the same name
    hardLink(u"a/x"_s, u"a/y"_s); // in the same folder
    temp.file(u"copy"_s);
    EXPECT_EQ(among({u"a/x"_s, u"b/x"_s}), Kind::hardLinks);
    EXPECT_EQ(among({u"copy"_s, u"a/x"_s, u"a/y"_s}), Kind::hardLinks);
    EXPECT_EQ(countOfKept({u"b/x"_s, u"a/y"_s}, {u"a/x"_s}), 0);
}

TEST_F(SameFileTest, oneEntryIsToldBeforeHardLinks)
{
    temp.file(u"a/x"_s);
    hardLink(u"a/x"_s, u"a/y"_s);
    temp.link(u"way"_s, temp.at(u"a"_s));
    EXPECT_EQ(among({u"a/x"_s, u"a/y"_s, u"way/y"_s}), Kind::oneEntry);
    EXPECT_EQ(countOfKept({u"a/x"_s, u"way/x"_s, u"way/y"_s}, {u"a/y"_s}), 1);
}

TEST_F(SameFileTest, linksToAFileAreEntriesOfTheirOwn)
{
    temp.file(u"x"_s);
    temp.link(u"a"_s, u"x"_s);
    temp.link(u"b"_s, u"x"_s);
    EXPECT_EQ(among({u"x"_s, u"a"_s, u"b"_s}), Kind::none);
    EXPECT_EQ(countOfKept({u"a"_s, u"b"_s}, {u"x"_s}), 0);
}

TEST_F(SameFileTest, aPathAtWhichNothingIsCountsForNothing)
{
    const QString file = temp.file(u"real/x"_s);
    temp.link(u"way"_s, temp.at(u"real"_s));
    temp.link(u"nowhere"_s, temp.at(u"gone"_s));
    EXPECT_EQ(among({u"real/x"_s, u"nowhere/x"_s, u"gone/x"_s, u"gone/x"_s}), Kind::none);
    EXPECT_EQ(countOfKept({u"gone/x"_s, u"nowhere/x"_s}, {u"real/x"_s, u"gone/x"_s}), 0);
    remove(file);
    EXPECT_EQ(among({u"real/x"_s, u"way/x"_s}), Kind::none);
    EXPECT_EQ(countOfKept({u"way/x"_s}, {u"real/x"_s}), 0);
    EXPECT_EQ(among({}), Kind::none);
    EXPECT_EQ(countOfKept({}, {}), 0);
}

TEST_F(SameFileTest, namesAreBytes)
{
    const QString name = paths::fromBytes("a\xFF");
    temp.file(u"real/"_s + name);
    temp.file(u"real/"_s + paths::fromBytes("a\xFE"));
    temp.link(u"way"_s, temp.at(u"real"_s));
    EXPECT_EQ(among({u"real/"_s + name, u"way/"_s + paths::fromBytes("a\xFE")}), Kind::none);
    EXPECT_EQ(among({u"real/"_s + name, u"way/"_s + name}), Kind::oneEntry);
}

TEST_F(SameFileTest, hundredsOfFilesAreToldApart)
{
    QStringList real;
    QStringList ways;
    temp.folder(u"real"_s);
    temp.file(u"first"_s);
    temp.link(u"way"_s, temp.at(u"real"_s));
    for (int i = 0; i < 500; ++i) {
        real << u"real/%1"_s.arg(i);
        ways << u"way/%1"_s.arg(i);
        hardLink(u"first"_s, real.last());
    }
    EXPECT_EQ(among(real), Kind::hardLinks);
    EXPECT_EQ(among(real + ways.last(1)), Kind::oneEntry);
    EXPECT_EQ(countOfKept(ways, real.first(100)), 100);
    EXPECT_EQ(countOfKept(real, {u"first"_s}), 0);
}
