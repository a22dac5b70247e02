#include "duplicates/scan/DuplicateWalk.h"

#include "base/Paths.h"
#include "filesystem/InjectedFaults.h"
#include "support/TempHome.h"
#include "Walk.h"

#include <cerrno>
#include <map>
#include <set>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

TEST(DuplicateWalk, walksLinksToFolders)
{
    const TempHome temp;
    temp.file(u"outside/file"_s);
    temp.link(u"home/link"_s, u"../outside"_s);
    const Walk walk(temp.at(u"home"_s));
    EXPECT_EQ(walk.found(), QStringList(temp.at(u"home/link/file"_s)));
    EXPECT_EQ(walk.entered, QStringList({temp.at(u"home"_s), temp.at(u"home/link"_s)}));
    EXPECT_EQ(Walk(temp.at(u"home/link"_s)).found(), QStringList(temp.at(u"home/link/file"_s)));
}

TEST(DuplicateWalk, asksTheRulesOfALinksOwnPathAndNotOfItsTarget)
{
    const TempHome temp;
    temp.file(u"node_modules/file"_s);
    temp.link(u"home/link"_s, temp.at(u"node_modules"_s));
    temp.file(u"plain/file"_s);
    temp.link(u"home/.git"_s, temp.at(u"plain"_s));
    temp.link(u"home/build"_s, temp.at(u"plain"_s));
    EXPECT_EQ(Walk(temp.at(u"home"_s), {u"node_modules"_s, temp.at(u"node_modules"_s), u"build"_s}).found(),
              QStringList(temp.at(u"home/link/file"_s)));
}

TEST(DuplicateWalk, endsACircleOfLinksAtTheDepthLimit)
{
    const TempHome temp;
    temp.file(u"a/file"_s);
    temp.link(u"a/up"_s, u".."_s);
    const Walk walk(temp.path());
    QStringList expected;
    for (QString prefix; expected.size() < 4; prefix += u"a/up/"_s)
        expected << temp.at(prefix + u"a/file"_s); // at the depths 1, 3, 5 and 7
    EXPECT_EQ(walk.foundSet(), std::set<QString>(expected.begin(), expected.end()));
    EXPECT_EQ(walk.entered.size(), 8);
}

TEST(DuplicateWalk, givesALinkToAFileTheLinksOwnSize)
{
    const TempHome temp;
    temp.file(u"outside/large"_s, QByteArray(5000, 'x'));
    const QString link = temp.link(u"home/link"_s, u"../outside/large"_s); // 16 bytes
    const Walk walk(temp.at(u"home"_s), {}, 16);
    EXPECT_EQ(walk.found(), QStringList(link));
    EXPECT_EQ(walk.table.files().front().size, 16);
    EXPECT_TRUE(walk.table.files().front().isLink);
    EXPECT_EQ(Walk(temp.at(u"home"_s), {}, 17).found(), QStringList());
}

TEST(DuplicateWalk, passesLinksOverThatLeadNowhere)
{
    const TempHome temp;
    temp.link(u"dangling"_s, u"missing"_s);
    temp.link(u"itself"_s, u"itself"_s);
    temp.link(u"one"_s, u"two"_s);
    temp.link(u"two"_s, u"one"_s);
    const Walk walk(temp.path());
    EXPECT_EQ(walk.found(), QStringList());
    EXPECT_EQ(walk.entered, QStringList(temp.path()));
}

// Some file systems tell nothing of an entry but its name.
TEST(DuplicateWalk, findsTheSameWhereAListingTellsNoKinds)
{
    const TempHome temp;
    temp.file(u"home/plain"_s, "12345");
    temp.file(u"home/folder/inside"_s, "1");
    temp.link(u"home/toFile"_s, u"plain"_s);
    temp.link(u"home/toFolder"_s, u"folder"_s);
    temp.link(u"home/toNothing"_s, u"missing"_s);
    const Walk told(temp.at(u"home"_s));
    std::map<QString, int> questions;
    const InjectedFaults silent([&questions](files::Operation operation, const QString &path) {
        if (operation == files::Operation::attributes)
            ++questions[path];
        return operation == files::Operation::kind ? ENOTSUP : 0;
    });
    const Walk untold(temp.at(u"home"_s));
    EXPECT_EQ(untold.found(), told.found());
    EXPECT_EQ(untold.entered, told.entered);
    EXPECT_EQ(told.found().size(), 4);
    for (size_t i = 0; i < told.table.files().size(); ++i) {
        EXPECT_EQ(untold.table.files()[i].size, told.table.files()[i].size);
        EXPECT_EQ(untold.table.files()[i].isLink, told.table.files()[i].isLink);
    }
    for (const auto &[path, count] : questions)
        EXPECT_LE(count, path.contains(u"/to"_s) ? 2 : 1) << path.toStdString();
}

TEST(DuplicateWalk, tellsWhatIsNoRegularFileLinksFollowed)
{
    const TempHome temp;
    temp.file(u"home/plain"_s);
    temp.folder(u"home"_s);
    ASSERT_EQ(mkfifo(paths::toBytes(temp.at(u"home/pipe"_s)).constData(), 0600), 0);
    temp.link(u"home/toPipe"_s, u"pipe"_s);
    temp.link(u"home/toPlain"_s, u"plain"_s);
    const Walk walk(temp.at(u"home"_s));
    std::map<QString, bool> regular;
    for (size_t i = 0; i < walk.table.files().size(); ++i)
        regular[walk.found()[static_cast<qsizetype>(i)].sliced(temp.at(u"home/"_s).size())] =
            walk.table.files()[i].isRegular;
    EXPECT_EQ(regular,
              (std::map<QString, bool>{
                  {u"pipe"_s, false}, {u"plain"_s, true}, {u"toPipe"_s, false}, {u"toPlain"_s, true}}));
}
