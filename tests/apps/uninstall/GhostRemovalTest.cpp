#include "apps/uninstall/GhostRemoval.h"

#include "apps/uninstall/UninstallHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct GhostRemovalTest : public testing::Test
{
    UninstallHome home;
    std::vector<AssociatedFile> some = {home.file(u"Caches/com.gone.app"_s, 10),
                                        home.file(u"Preferences/com.gone.app.plist"_s, 20),
                                        home.file(u"Application Support/Gone"_s, 40)};
    GhostRemoval removal;

    void run() { removal.remove(some, home.fileSystem, *home.test.locations); }
};

} // namespace

TEST_F(GhostRemovalTest, movesTheSelectedFiles)
{
    some[1].selected = false;
    run();
    EXPECT_EQ(home.test.recycler.recycled, QStringList({some[0].path, some[2].path}));
    EXPECT_TRUE(home.isThere(some[1].path));
    EXPECT_EQ(removal.count, 2);
    EXPECT_EQ(removal.size, 50);
    EXPECT_TRUE(home.isTrashed(some[0].path));
}

TEST_F(GhostRemovalTest, tellsWhatWasTried)
{
    home.refused = {some[0].path};
    run();
    EXPECT_TRUE(home.isThere(some[0].path));
    EXPECT_EQ(removal.count, 3);
    EXPECT_EQ(removal.size, 70);
}

TEST_F(GhostRemovalTest, passesOverWhatHasVanished)
{
    std::filesystem::remove(some[0].path.toStdString());
    run();
    EXPECT_EQ(removal.count, 2);
    EXPECT_EQ(removal.size, 60);
}

TEST_F(GhostRemovalTest, addsUpOverSeveralGroups)
{
    run();
    some = {home.file(u"WebKit/com.other.app"_s, 5)};
    run();
    EXPECT_EQ(removal.count, 4);
    EXPECT_EQ(removal.size, 75);
}

TEST_F(GhostRemovalTest, writesNeitherARecordNorALine)
{
    run();
    EXPECT_EQ(home.madeHistory, nullptr);
    EXPECT_TRUE(home.test.systemLog.lines.isEmpty());
}

TEST_F(GhostRemovalTest, removesNothingElsewhereThanDirectlyInTheFoldersForIt)
{
    const QString document = home.test.temp.file(u"home/Documents/plan.txt"_s, "mine");
    for (AssociatedFile &file : some)
        file.selected = false;
    some.push_back({ids::fresh(), document, u"Cache"_s, 10, true});
    some.push_back({ids::fresh(), home.inLibrary(u"Caches/../../Documents"_s), u"Cache"_s, 10, true});
    some.push_back({ids::fresh(), home.inLibrary(u"Caches"_s), u"Cache"_s, 10, true});
    run();
    EXPECT_TRUE(home.test.recycler.recycled.isEmpty());
    EXPECT_TRUE(home.isThere(document));
}
