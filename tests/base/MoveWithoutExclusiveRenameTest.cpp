#include "base/Files.h"
#include "base/Paths.h"
#include "FileChecks.h"
#include "support/OrdinaryUser.h"
#include "support/TempHome.h"

#include <cerrno>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace filechecks;
using files::Kind;
using files::Operation;

namespace {

/// A file system that refuses the exclusive rename, as some FUSE and network mounts do.
class MoveWithoutExclusiveRenameTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        files::injectFaults(
            [](Operation operation, const QString &) { return operation == Operation::move ? EINVAL : 0; });
    }
    void TearDown() override { files::injectFaults({}); }

    const TempHome temp;
};

} // namespace

TEST_F(MoveWithoutExclusiveRenameTest, movesFilesLinksAndFolders)
{
    temp.file(u"file"_s, "content");
    temp.link(u"link"_s, u"missing"_s);
    temp.file(u"folder/inside"_s, "inside");
    for (const QString &name : {u"file"_s, u"link"_s, u"folder"_s})
        files::move(temp.at(name), temp.at(name + u" moved"_s));
    EXPECT_EQ(content(temp.at(u"file moved"_s)), "content");
    EXPECT_EQ(files::attributes(temp.at(u"link moved"_s))->kind, Kind::link);
    EXPECT_EQ(content(temp.at(u"folder moved/inside"_s)), "inside");
    EXPECT_EQ(files::list(temp.path())->size(), 3U);
}

TEST_F(MoveWithoutExclusiveRenameTest, neverReplaces)
{
    const QStringList sources{temp.file(u"file"_s, "mine"), temp.folder(u"folder"_s)};
    const QStringList targets{temp.file(u"other"_s, "other"), temp.folder(u"other folder"_s),
                              temp.link(u"link"_s, u"missing"_s)};
    for (const QString &from : sources) {
        for (const QString &to : targets) {
            EXPECT_EQ(moveFailure(from, to), EEXIST) << to.toStdString();
            EXPECT_TRUE(files::attributes(from));
        }
    }
    EXPECT_EQ(content(temp.at(u"other"_s)), "other");
}

TEST_F(MoveWithoutExclusiveRenameTest, leavesNoSecondNameWhereTheOldOneCannotGo)
{
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const TempHome home;
        const QString from = home.file(u"locked/file"_s, "content");
        home.setMode(u"locked"_s, 0555); // a link to what is in it can be made, but nothing in it be unlinked
        EXPECT_EQ(moveFailure(from, home.at(u"file"_s)), EACCES);
        EXPECT_FALSE(files::attributes(home.at(u"file"_s)));
        EXPECT_EQ(content(from), "content");
    }));
}
