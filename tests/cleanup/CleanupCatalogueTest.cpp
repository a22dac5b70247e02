#include "cleanup/CleanupCatalogue.h"

#include "base/FileRemoval.h"
#include "base/Paths.h"
#include "CleanupServices.h"
#include "filesystem/InjectedFaults.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CleanupCatalogueTest : public testing::Test
{
protected:
    std::vector<CleanupCategory> build()
    {
        return cleanupcatalogue::build(*test.locations, test.platform.programs, test.probes);
    }

    QStringList builtIds()
    {
        QStringList ids;
        for (const CleanupCategory &category : build())
            ids << category.id;
        return ids;
    }

    CleanupCategory built(const QString &id)
    {
        for (const CleanupCategory &category : build()) {
            if (category.id == id)
                return category;
        }
        ADD_FAILURE() << id.toStdString() << " is not there";
        return {};
    }

    /// A file of that many bytes on the disk, more or less.
    QString heavyFile(const QString &relative, qsizetype size) const
    {
        return services.file(relative, QByteArray(size, 'x'));
    }

    CleanupServices services;
    TestPlatform &test = services.test;
};

} // namespace

TEST_F(CleanupCatalogueTest, offersTheSevenCategoriesInTheirWords)
{
    test.temp.file(u"Applications/Xcode.app"_s);
    services.folder(u"Downloads/empty"_s);
    services.folder(u".npm/_cacache"_s);
    const auto all = cleanupcatalogue::categories(*test.locations);
    QStringList lines;
    for (const CleanupCategory &category : all) {
        EXPECT_EQ(category.size, 0);
        EXPECT_EQ(category.fileCount, 0);
        EXPECT_FALSE(category.checked);
        lines << QStringList{category.id, category.name, category.description, category.icon,
                             category.safe ? u"safe"_s : u"unsafe"_s}
                     .join(u'|');
    }
    EXPECT_EQ(
        lines,
        (QStringList{
            u"browser-cache|Browser Caches|Chrome, Safari, Firefox cache files|globe|safe"_s,
            u"logs|Log Files|System & application logs|doc.text.fill|safe"_s,
            u"xcode-derived|Xcode Derived Data|Build artifacts & caches (will rebuild on next project open)|hammer.fill|safe"_s,
            u"npm-cache|npm / yarn Cache|Package manager caches (will re-download on next install)|shippingbox.fill|safe"_s,
            u"empty-folders|Empty Folders|Completely empty folders in Downloads, Desktop, and Documents|folder.badge.minus|unsafe"_s,
            u"old-downloads|Old Downloads|Files older than 30 days in Downloads|arrow.down.circle.fill|unsafe"_s,
            u"trash|Trash|Permanently delete items in Trash|trash.fill|unsafe"_s,
        }));
}

TEST_F(CleanupCatalogueTest, namesTheMacsPlaces)
{
    test.temp.file(u"Applications/Xcode.app"_s);
    services.folder(u".npm/_cacache"_s);
    services.folder(u"Library/Caches/Yarn"_s);
    QMap<QString, QStringList> places;
    for (const CleanupCategory &category : cleanupcatalogue::categories(*test.locations)) {
        for (const QString &path : category.paths)
            places[category.id] << path.mid(test.home.size() + 1);
    }
    EXPECT_EQ(places, (QMap<QString, QStringList>{
                          {u"browser-cache"_s,
                           {u"Library/Caches/Google/Chrome"_s, u"Library/Caches/com.apple.Safari"_s,
                            u"Library/Caches/org.mozilla.firefox"_s}},
                          {u"logs"_s, {u"Library/Logs"_s}},
                          {u"xcode-derived"_s, {u"Library/Developer/Xcode/DerivedData"_s}},
                          {u"npm-cache"_s, {u".npm/_cacache"_s, u"Library/Caches/Yarn"_s}},
                          {u"old-downloads"_s, {u"Downloads"_s}},
                          {u"trash"_s, {u".Trash"_s}},
                      }));
}

TEST_F(CleanupCatalogueTest, leavesXcodesDataOutWithoutXcode)
{
    heavyFile(u"Library/Developer/Xcode/DerivedData/file"_s, 100000);
    EXPECT_EQ(builtIds(), QStringList());
    test.temp.folder(u"Applications/Xcode.app"_s);
    EXPECT_EQ(builtIds(), QStringList(u"xcode-derived"_s));
}

TEST_F(CleanupCatalogueTest, namesThosePackageCachesThatAreThere)
{
    const QString yarn = services.folder(u"Library/Caches/Yarn"_s);
    heavyFile(u"Library/Caches/Yarn/file"_s, 5000);
    EXPECT_EQ(built(u"npm-cache"_s).paths, QStringList(yarn));
    files::removeTree(yarn);
    for (const CleanupCategory &category : cleanupcatalogue::categories(*test.locations))
        EXPECT_NE(category.id, u"npm-cache");
}

TEST_F(CleanupCatalogueTest, measuresAPlaceByDuAndFind)
{
    heavyFile(u"Library/Logs/a/b/deep.log"_s, 300000);
    heavyFile(u"Library/Logs/a/b/c/deeper.log"_s, 300000);
    heavyFile(u"Library/Logs/top.log"_s, 20000);
    const CleanupCategory logs = built(u"logs"_s);
    EXPECT_GE(logs.size, 620000);
    EXPECT_EQ(logs.size, test.probes.probeSize(services.inHome(u"Library/Logs"_s), ProbeContext::generic));
    EXPECT_EQ(logs.fileCount, 2);
}

TEST_F(CleanupCatalogueTest, addsUpThePlacesOfACategory)
{
    heavyFile(u"Library/Caches/Google/Chrome/a"_s, 50000);
    heavyFile(u"Library/Caches/org.mozilla.firefox/b"_s, 70000);
    const CleanupCategory caches = built(u"browser-cache"_s);
    EXPECT_EQ(caches.size, test.probes.probeSize(caches.paths[0], ProbeContext::generic)
                               + test.probes.probeSize(caches.paths[2], ProbeContext::generic));
    EXPECT_EQ(caches.fileCount, 2);
    EXPECT_EQ(caches.paths.size(), 3) << "one that is not there is named all the same";
}

TEST_F(CleanupCatalogueTest, countsEmptyFoldersAsBytesWithoutMeasuring)
{
    test.useDu("echo \"$2\" >>" + paths::toBytes(test.temp.at(u"asked"_s)) + "\necho 0\n");
    const QString one = services.folder(u"Downloads/one"_s);
    const QString two = services.folder(u"Documents/two"_s);
    const CleanupCategory empty = built(u"empty-folders"_s);
    EXPECT_EQ(empty.paths, (QStringList{one, two}));
    EXPECT_EQ(empty.size, 2);
    EXPECT_EQ(empty.fileCount, 2);
    EXPECT_FALSE(files::readAll(test.temp.at(u"asked"_s), 100000).contains("/one\n"));
}

TEST_F(CleanupCatalogueTest, looksForEmptyFoldersInDownloadsDesktopAndDocuments)
{
    const QStringList expected{services.folder(u"Downloads/d"_s), services.folder(u"Desktop/c"_s),
                               services.folder(u"Documents/a"_s)};
    services.folder(u"Pictures/b"_s);
    EXPECT_EQ(built(u"empty-folders"_s).paths, expected);
}

TEST_F(CleanupCatalogueTest, measuresAllOfDownloadsAsOldOnes)
{
    heavyFile(u"Downloads/new"_s, 100000);
    const CleanupCategory downloads = built(u"old-downloads"_s);
    EXPECT_EQ(downloads.size, test.probes.probeSize(services.inHome(u"Downloads"_s), ProbeContext::generic));
    EXPECT_EQ(downloads.fileCount, 1);
}

TEST_F(CleanupCatalogueTest, putsTheLargestFirstAndEqualOnesInCatalogueOrder)
{
    // The second argument is the path: logs get 8 KB, all else 4 KB.
    test.useDu("case \"$2\" in *Logs) printf '8\\t';; *) printf '4\\t';; esac\n");
    for (const QString &place :
         {u".Trash"_s, u"Downloads"_s, u"Library/Logs"_s, u"Library/Caches/Google/Chrome"_s})
        services.file(place + u"/file"_s);
    EXPECT_EQ(builtIds(), (QStringList{u"logs"_s, u"browser-cache"_s, u"old-downloads"_s, u"trash"_s}));
}

TEST_F(CleanupCatalogueTest, offersNothingInAHomeThatHoldsNothing)
{
    EXPECT_EQ(builtIds(), QStringList());
}

// An empty folder takes 4 KB on this file system.

TEST_F(CleanupCatalogueTest, takesAPlaceWithoutEntriesForNothing)
{
    for (const QString &place :
         {u".Trash"_s, u"Downloads"_s, u"Desktop"_s, u"Library/Logs"_s, u".npm/_cacache"_s,
          u"Library/Caches/Google/Chrome"_s, u"Library/Developer/Xcode/DerivedData"_s})
        services.folder(place);
    test.temp.folder(u"Applications/Xcode.app"_s);
    test.useDu("echo \"$2\" >>" + paths::toBytes(test.temp.at(u"asked"_s)) + "\nprintf '4\\t'\n");
    EXPECT_EQ(builtIds(), QStringList());
    EXPECT_FALSE(files::exists(test.temp.at(u"asked"_s))) << "nor is it measured";
}

TEST_F(CleanupCatalogueTest, measuresOnlyThosePlacesOfACategoryThatHoldEntries)
{
    test.useDu("printf '4\\t'\n");
    services.folder(u"Library/Caches/Google/Chrome"_s);
    services.file(u"Library/Caches/org.mozilla.firefox/.hidden"_s);
    EXPECT_EQ(built(u"browser-cache"_s).size, 4096);
}

TEST_F(CleanupCatalogueTest, takesATrashThatCannotBeReadForNothing)
{
    test.useDu("printf '4\\t'\n");
    services.file(u".Trash/file"_s);
    const InjectedFaults faults(files::Operation::list, services.inHome(u".Trash"_s));
    EXPECT_EQ(builtIds(), QStringList());
}

TEST_F(CleanupCatalogueTest, takesAPlaceThatIsALinkForNothing)
{
    test.useDu("printf '4\\t'\n");
    services.file(u"elsewhere/file"_s);
    services.link(u".Trash"_s, services.inHome(u"elsewhere"_s));
    services.file(u"Library/Logs/file"_s);
    EXPECT_EQ(builtIds(), QStringList(u"logs"_s));
}

TEST_F(CleanupCatalogueTest, measuresNothingWhereDuFails)
{
    services.file(u"Library/Logs/file"_s);
    test.platform.programs.du = test.temp.at(u"missing"_s);
    EXPECT_EQ(builtIds(), QStringList());
}

TEST_F(CleanupCatalogueTest, countsNothingWithoutAShellYetOffersThePlace)
{
    heavyFile(u"Library/Logs/file"_s, 10000);
    test.platform.programs.sh = test.temp.at(u"missing"_s);
    EXPECT_EQ(built(u"logs"_s).fileCount, 0);
}

TEST_F(CleanupCatalogueTest, countsInAHomeWithAnApostrophe)
{
    test.home = test.temp.folder(u"o'brien's home"_s);
    test.temp.file(u"o'brien's home/Library/Logs/file"_s, QByteArray(10000, 'x'));
    EXPECT_EQ(built(u"logs"_s).fileCount, 1);
}
