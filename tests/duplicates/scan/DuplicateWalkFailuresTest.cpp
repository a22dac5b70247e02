#include "duplicates/scan/DuplicateWalk.h"

#include "CallCounts.h"
#include "support/TempHome.h"
#include "Walk.h"

#include <cerrno>
#include <set>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(DuplicateWalk, takesALinkWhoseOwnSizeCannotBeReadForEmpty)
{
    const TempHome temp;
    temp.file(u"outside/file"_s);
    const QString link = temp.link(u"home/link"_s, temp.at(u"outside/file"_s));
    int asked = 0;
    const InjectedFaults fault([&](files::Operation operation, const QString &path) {
        return operation == files::Operation::attributes && path == link && ++asked == 2 ? EIO : 0;
    });
    const Walk walk(temp.at(u"home"_s));
    EXPECT_EQ(walk.found(), QStringList(link));
    EXPECT_EQ(walk.table.files().front().size, 0);
}

TEST(DuplicateWalk, passesAnEntryOverThatVanishesAfterItWasListed)
{
    const TempHome temp;
    const QString gone = temp.file(u"gone"_s);
    const QString stays = temp.file(u"stays"_s);
    const InjectedFaults fault([&](files::Operation operation, const QString &path) {
        return operation == files::Operation::attributes && path == gone ? ENOENT : 0;
    });
    EXPECT_EQ(Walk(temp.path()).found(), QStringList(stays));
}

TEST(DuplicateWalk, passesAFolderOverThatCannotBeListed)
{
    const TempHome temp;
    temp.file(u"locked/file"_s);
    const QString open = temp.file(u"open/file"_s);
    const InjectedFaults fault(files::Operation::list, temp.at(u"locked"_s));
    const Walk walk(temp.path());
    EXPECT_EQ(walk.found(), QStringList(open));
    EXPECT_TRUE(walk.entered.contains(temp.at(u"locked"_s))) << "it was told of before it was read";
}

TEST(DuplicateWalk, findsNothingInAFolderWhoseListBreaksOff)
{
    const TempHome temp;
    for (int number = 0; number < 5; ++number) {
        temp.file(u"broken/file%1"_s.arg(number));
        temp.file(u"broken/folder%1/inner"_s.arg(number));
    }
    const QString before = temp.file(u"a/file"_s);
    const QString after = temp.file(u"z/file"_s);
    const QString own = temp.file(u"own"_s);
    int steps = 0;
    const InjectedFaults fault([&](files::Operation operation, const QString &path) {
        const bool isStep = operation == files::Operation::next && path == temp.at(u"broken"_s);
        return isStep && ++steps == 9 ? EIO : 0; // 12 entries with "." and ".."
    });
    EXPECT_EQ(Walk(temp.path()).foundSet(), std::set<QString>({before, after, own}));
    EXPECT_EQ(steps, 9);
}

TEST(DuplicateWalk, asksAtMostOneQuestionAnEntryAndTwoForALink)
{
    const TempHome temp;
    const QString file = temp.file(u"file"_s, "content");
    const QString inner = temp.file(u"folder/inner"_s);
    const QString fileLink = temp.link(u"fileLink"_s, u"file"_s);
    const QString folderLink = temp.link(u"folderLink"_s, u"folder"_s);
    const QString dangling = temp.link(u"dangling"_s, u"missing"_s);
    const QString hidden = temp.file(u".hidden"_s);
    const CallCounts calls;
    const Walk walk(temp.path());
    EXPECT_EQ(walk.found().size(), 4);
    for (const auto &[path, count] : calls.questions)
        EXPECT_LE(count, path == fileLink || path == folderLink || path == dangling ? 2 : 1)
            << path.toStdString();
    EXPECT_EQ(calls.questions.count(hidden), 0U);
    EXPECT_EQ(calls.questions.count(file), 1U);
    EXPECT_EQ(calls.questions.count(inner), 1U);
    EXPECT_EQ(calls.listed.size(), 3);
    EXPECT_EQ(calls.opened, QStringList());
}

TEST(DuplicateWalk, doesNothingOnceItIsCancelled)
{
    const TempHome temp;
    temp.file(u"file"_s);
    Walk walk;
    walk.isCancelled = [] { return true; };
    walk.run(temp.path());
    EXPECT_EQ(walk.entered, QStringList());
    EXPECT_EQ(walk.found(), QStringList());
}

TEST(DuplicateWalk, entersNoFurtherFolderOnceItIsCancelled)
{
    const TempHome temp;
    for (int number = 0; number < 10; ++number)
        temp.folder(u"%1/inner"_s.arg(number));
    Walk walk;
    walk.isCancelled = [&walk] { return walk.entered.size() == 3; };
    walk.run(temp.path());
    EXPECT_EQ(walk.entered.size(), 3);
}

TEST(DuplicateWalk, asksNothingFurtherOfAFolderOnceItIsCancelled)
{
    const TempHome temp;
    for (int number = 0; number < 10; ++number)
        temp.file(QString::number(number));
    const CallCounts calls;
    Walk walk;
    walk.isCancelled = [&calls] { return calls.questions.size() == 3; };
    walk.run(temp.path());
    EXPECT_EQ(calls.questions.size(), 3U);
}
