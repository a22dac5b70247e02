#include "cleanup/CleanupPlaces.h"

#include "cleanup/CleanupCatalogue.h"
#include "CleanupServices.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A home of this system's own shape.
class CleanupPlacesTest : public testing::Test
{
protected:
    CleanupPlacesTest() { services.test.usesLinuxLocations = true; }

    /// The places of a category, from the home folder on.
    QStringList places(const QString &id)
    {
        QStringList all;
        for (const CleanupCategory &category : cleanupcatalogue::categories(*services.test.locations)) {
            if (category.id == id) {
                for (const QString &path : category.paths)
                    all << path.mid(services.test.home.size() + 1);
            }
        }
        return all;
    }

    CleanupServices services;
};

} // namespace

TEST_F(CleanupPlacesTest, areTheFoldersOfLogsDirectlyInsideAnyCacheOrState)
{
    for (const QString &folder : {u".cache/editor/logs"_s, u".local/state/tool/log"_s, u".cache/a/b/logs"_s,
                                  u".cache/logs"_s, u".cache/x/Logs"_s, u".config/editor/logs"_s, u"logs"_s})
        services.folder(folder);
    services.file(u".cache/tool/log"_s);
    EXPECT_EQ(places(u"logs"_s), (QStringList{u".cache/editor/logs"_s, u".local/state/tool/log"_s}));
}

TEST_F(CleanupPlacesTest, areFoundThroughNoLink)
{
    services.folder(u"project/logs"_s);
    services.link(u".cache/project"_s, services.inHome(u"project"_s));
    services.link(u".cache/tool/logs"_s, services.inHome(u"project/logs"_s));
    EXPECT_EQ(places(u"logs"_s), QStringList());
}

TEST_F(CleanupPlacesTest, areLookedForAtEachScan)
{
    EXPECT_EQ(places(u"logs"_s), QStringList());
    services.folder(u".cache/new/logs"_s);
    EXPECT_EQ(places(u"logs"_s), QStringList(u".cache/new/logs"_s));
}

TEST_F(CleanupPlacesTest, standOnceWherePatternsMeet)
{
    const QString cache = services.folder(u"cache"_s);
    services.folder(u"cache/log/logs"_s);
    services.folder(u"cache/tool/log"_s);
    const Locations::CleanupRow row{.category = u"logs"_s,
                                    .places = {},
                                    .patterns = {{.parents = {cache, cache}, .names = {u"log"_s, u"logs"_s}},
                                                 {.parents = {services.test.home}, .names = {u"log"_s}}}};
    EXPECT_EQ(cleanupplaces::ofRow(row),
              (QStringList{services.inHome(u"cache/tool/log"_s), services.inHome(u"cache/log"_s)}));
}

TEST_F(CleanupPlacesTest, haveNoRowForXcode)
{
    services.test.temp.folder(u"Applications/Xcode.app"_s);
    for (const CleanupCategory &category : cleanupcatalogue::categories(*services.test.locations))
        EXPECT_NE(category.id, u"xcode-derived");
}

TEST_F(CleanupPlacesTest, areTheTrashedItemsThemselves)
{
    EXPECT_EQ(places(u"trash"_s), QStringList(u".local/share/Trash/files"_s));
}

TEST_F(CleanupPlacesTest, holdEntriesOnlyWhereThereAreSome)
{
    EXPECT_FALSE(cleanupplaces::holdsEntries(services.folder(u"empty"_s)));
    EXPECT_FALSE(cleanupplaces::holdsEntries(services.inHome(u"missing"_s)));
    EXPECT_FALSE(cleanupplaces::holdsEntries(services.file(u"hidden/.file"_s)));
    EXPECT_TRUE(cleanupplaces::holdsEntries(services.inHome(u"hidden"_s)));
    EXPECT_FALSE(cleanupplaces::holdsEntries(services.link(u"link"_s, u"hidden"_s)));
}
