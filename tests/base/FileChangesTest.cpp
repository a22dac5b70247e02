#include "base/Files.h"
#include "FileChecks.h"
#include "support/TempHome.h"

#include <cerrno>
#include <thread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace filechecks;
using files::Kind;

TEST(MakeDirectory, refusesANameThatIsTaken)
{
    const TempHome temp;
    EXPECT_EQ(failureOf([&] { files::makeDirectory(temp.file(u"file"_s, "kept")); }), EEXIST);
    EXPECT_EQ(failureOf([&] { files::makeDirectory(temp.folder(u"folder"_s)); }), EEXIST);
    EXPECT_EQ(failureOf([&] { files::makeDirectory(temp.link(u"link"_s, u"missing"_s)); }), EEXIST);
    EXPECT_EQ(content(temp.at(u"file"_s)), "kept");
}

TEST(MakeDirectory, makesNoFolderAbove)
{
    const TempHome temp;
    EXPECT_EQ(failureOf([&] { files::makeDirectory(temp.at(u"missing/folder"_s)); }), ENOENT);
    EXPECT_EQ(names(temp.path()), std::set<QString>());
}

TEST(MakeDirectories, makeWhatIsMissingAbove)
{
    const TempHome temp;
    const QString deepest = temp.at(u"a/b\n/"_s + paths::fromBytes("\xFF") + u"/d"_s);
    files::makeDirectories(deepest);
    EXPECT_TRUE(files::isDirectory(deepest));
    files::makeDirectories(deepest);
    files::makeDirectories(temp.at(u"a/x/"_s));
    EXPECT_EQ(names(temp.at(u"a"_s)), std::set<QString>({u"b\n"_s, u"x"_s}));
}

TEST(MakeDirectories, goThroughALinkToAFolder)
{
    const TempHome temp;
    temp.folder(u"real"_s);
    files::makeDirectories(paths::join(temp.link(u"link"_s, u"real"_s), u"new/deep"_s));
    EXPECT_TRUE(files::isDirectory(temp.at(u"real/new/deep"_s)));
    files::makeDirectories(temp.at(u"link"_s));
}

TEST(MakeDirectories, refuseAFileInTheWay)
{
    const TempHome temp;
    const QString file = temp.file(u"file"_s, "kept");
    EXPECT_EQ(failureOf([&] { files::makeDirectories(file); }), EEXIST);
    EXPECT_EQ(failureOf([&] { files::makeDirectories(paths::join(file, u"below"_s)); }), EEXIST);
    EXPECT_EQ(content(file), "kept");
}

TEST(MakeDirectories, refuseADanglingLinkInTheWay)
{
    const TempHome temp;
    EXPECT_EQ(failureOf([&] { files::makeDirectories(temp.link(u"link"_s, u"missing"_s)); }), EEXIST);
}

TEST(MakeDirectories, bearWithOthersThatMakeTheSame)
{
    const TempHome temp;
    std::vector<std::thread> threads;
    std::vector<int> failures(8, -1);
    for (int &failure : failures) {
        threads.emplace_back([&temp, &failure] {
            failure = failureOf([&temp] { files::makeDirectories(temp.at(u"a/b/c/d/e/f/g/h"_s)); });
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(failures, std::vector<int>(8, 0));
    EXPECT_TRUE(files::isDirectory(temp.at(u"a/b/c/d/e/f/g/h"_s)));
}

TEST(Move, neverReplacesAFile)
{
    const TempHome temp;
    const QString from = temp.file(u"from"_s, "mine");
    const QString to = temp.file(u"to"_s, "other");
    EXPECT_EQ(moveFailure(from, to), EEXIST);
    EXPECT_EQ(content(from), "mine");
    EXPECT_EQ(content(to), "other");
}

TEST(Move, neverReplacesAnEmptyFolder)
{
    const TempHome temp;
    const QString from = temp.folder(u"from"_s);
    const QString to = temp.folder(u"to"_s);
    EXPECT_EQ(moveFailure(from, to), EEXIST);
    EXPECT_EQ(moveFailure(temp.file(u"file"_s), to), EEXIST);
    EXPECT_TRUE(files::isDirectory(from));
}

TEST(Move, neverReplacesADanglingLink)
{
    const TempHome temp;
    const QString from = temp.file(u"from"_s, "mine");
    const QString to = temp.link(u"to"_s, u"missing"_s);
    EXPECT_EQ(moveFailure(from, to), EEXIST);
    EXPECT_EQ(content(from), "mine");
    EXPECT_EQ(files::attributes(to)->kind, Kind::link);
}

TEST(Move, refusesAnEntrysOwnName)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s, "kept");
    EXPECT_EQ(moveFailure(path, path), EEXIST);
    EXPECT_EQ(content(path), "kept");
}

TEST(Move, takesALinkItselfAndNotItsTarget)
{
    const TempHome temp;
    const QString target = temp.file(u"target"_s, "content");
    const QString link = temp.link(u"link"_s, u"target"_s);
    files::move(link, temp.at(u"moved"_s));
    EXPECT_EQ(files::attributes(temp.at(u"moved"_s))->kind, Kind::link);
    EXPECT_EQ(content(target), "content");
    EXPECT_FALSE(files::attributes(link));
}

TEST(Move, takesAFolderWithWhatIsInIt)
{
    const TempHome temp;
    temp.file(u"from/deep/file"_s, "content");
    files::move(temp.at(u"from"_s), temp.at(u"to"_s));
    EXPECT_EQ(content(temp.at(u"to/deep/file"_s)), "content");
    EXPECT_FALSE(files::exists(temp.at(u"from"_s)));
}

TEST(Move, refusesAFoldersOwnInside)
{
    const TempHome temp;
    const QString folder = temp.folder(u"folder"_s);
    EXPECT_NE(moveFailure(folder, paths::join(folder, u"inside"_s)), 0);
    EXPECT_TRUE(files::isDirectory(folder));
}

TEST(Move, saysWhatIsMissing)
{
    const TempHome temp;
    EXPECT_EQ(moveFailure(temp.at(u"missing"_s), temp.at(u"to"_s)), ENOENT);
    const QString file = temp.file(u"file"_s, "kept");
    EXPECT_EQ(moveFailure(file, temp.at(u"no folder/file"_s)), ENOENT);
    EXPECT_EQ(content(file), "kept");
}
