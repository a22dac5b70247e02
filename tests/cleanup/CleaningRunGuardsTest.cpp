#include "cleanup/CleaningRun.h"

#include "CleanupServices.h"
#include "support/OrdinaryUser.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CleaningRunGuardsTest : public testing::Test
{
protected:
    CleaningRunGuardsTest() { services.test.useDu("printf '100\\t'\n"); }

    /// Runs the cleaning of one category with these places, of which files may be picked.
    void run(const QString &id, const QStringList &places, const QStringList &picked = {})
    {
        CleanupCategory category;
        category.id = id;
        category.paths = places;
        category.checked = true;
        CleanupSelection selection;
        selection.selectedFilePaths[id] = QSet<QString>(picked.begin(), picked.end());
        CleaningRun({category}, selection).run(services.fileSystem, services.test.recycler);
    }

    /// Another program takes a folder of the Trash back, and moves another one of its name there, as a run moves a file.
    void replaceTrashedFolderOnTheWay()
    {
        const auto moves = services.test.recycler.answers;
        services.test.recycler.answers = [this, moves](const QStringList &paths,
                                                       const Recycler::Completion &done) {
            moves(paths, done);
            services.file(u"new/file"_s); // while the old one is there, so that it can't get its number
            files::move(at(u".Trash/folder"_s), at(u"taken back"_s));
            files::move(at(u"new"_s), at(u".Trash/folder"_s));
        };
    }

    QString at(const QString &relative) const { return services.inHome(relative); }

    CleanupServices services;
};

} // namespace

TEST_F(CleaningRunGuardsTest, takesALinkInAPlaceAndNeverWhatItLeadsTo)
{
    services.file(u"kept/file"_s);
    services.link(u"Library/Logs/link"_s, at(u"kept"_s));
    services.link(u"Library/Logs/folder/deep link"_s, at(u"kept"_s));
    services.link(u"Library/Logs/nowhere"_s, u"missing"_s);
    run(u"logs"_s, {at(u"Library/Logs"_s)});
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList());
    EXPECT_EQ(services.names(u".Trash"_s), (QStringList{u"folder"_s, u"link"_s, u"nowhere"_s}));
    EXPECT_EQ(services.names(u"kept"_s), QStringList(u"file"_s));
}

TEST_F(CleaningRunGuardsTest, removesALinkInTheTrashAndNeverWhatItLeadsTo)
{
    services.file(u"kept/file"_s);
    services.link(u".Trash/link"_s, at(u"kept"_s));
    services.link(u".Trash/folder/deep link"_s, at(u"kept"_s));
    run(u"trash"_s, {at(u".Trash"_s)});
    EXPECT_EQ(services.names(u".Trash"_s), QStringList());
    EXPECT_EQ(services.names(u"kept"_s), QStringList(u"file"_s));
}

TEST_F(CleaningRunGuardsTest, leavesAPlaceThatIsALinkAlone)
{
    services.file(u"kept/file"_s);
    for (const QString &place : {u"Library/Logs"_s, u".Trash"_s, u"Downloads"_s, u"Desktop/empty"_s})
        services.link(place, at(u"kept"_s));
    run(u"logs"_s, {at(u"Library/Logs"_s)});
    run(u"logs"_s, {at(u"Library/Logs"_s)}, {at(u"Library/Logs/file"_s)});
    run(u"trash"_s, {at(u".Trash"_s)});
    run(u"trash"_s, {at(u".Trash"_s)}, {at(u".Trash/file"_s)});
    run(u"old-downloads"_s, {at(u"Downloads"_s)}, {at(u"Downloads/file"_s)});
    run(u"empty-folders"_s, {at(u"Desktop/empty"_s)});
    run(u"empty-folders"_s, {at(u"Desktop/empty"_s)}, {at(u"Desktop/empty"_s)});
    EXPECT_EQ(services.names(u"kept"_s), QStringList(u"file"_s));
    EXPECT_TRUE(services.test.recycler.recycled.isEmpty());
    EXPECT_EQ(services.names(u"Desktop"_s), QStringList(u"empty"_s));
}

TEST_F(CleaningRunGuardsTest, stopsInAPlaceThatBecomesALinkOnTheWay)
{
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s}) {
        services.file(u"Library/Logs/"_s + name);
        services.file(u"kept/"_s + name);
    }
    const auto moves = services.test.recycler.answers;
    services.test.recycler.answers = [this, moves](const QStringList &paths,
                                                   const Recycler::Completion &done) {
        moves(paths, done);
        if (services.test.recycler.recycled.size() == 1) {
            files::move(at(u"Library/Logs"_s), at(u"Library/Moved"_s));
            services.link(u"Library/Logs"_s, at(u"kept"_s));
        }
    };
    run(u"logs"_s, {at(u"Library/Logs"_s)});
    EXPECT_EQ(services.names(u"kept"_s).size(), 3);
    EXPECT_EQ(services.names(u"Library/Moved"_s).size(), 2);
}

TEST_F(CleaningRunGuardsTest, followsNoLinkThatIsPutAboveAPickedFileOnTheWay)
{
    for (const QString &name : {u"a"_s, u"b"_s}) {
        services.file(u"Library/Logs/folder/"_s + name);
        services.file(u"kept/"_s + name);
    }
    const auto moves = services.test.recycler.answers;
    services.test.recycler.answers = [this, moves](const QStringList &paths,
                                                   const Recycler::Completion &done) {
        moves(paths, done);
        files::move(at(u"Library/Logs/folder"_s), at(u"Moved"_s));
        services.link(u"Library/Logs/folder"_s, at(u"kept"_s));
    };
    run(u"logs"_s, {at(u"Library/Logs"_s)}, {at(u"Library/Logs/folder/a"_s), at(u"Library/Logs/folder/b"_s)});
    EXPECT_EQ(services.names(u"kept"_s), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(services.names(u"Moved"_s), QStringList(u"b"_s));
}

TEST_F(CleaningRunGuardsTest, leavesAFolderThatIsEmptyNoMore)
{
    const QStringList places{services.folder(u"Desktop/empty"_s), services.folder(u"Desktop/filled"_s),
                             services.folder(u"Desktop/holds an empty one"_s)};
    services.file(u"Desktop/filled/file"_s);
    services.folder(u"Desktop/holds an empty one/empty"_s);
    run(u"empty-folders"_s, places, {places[1], places[2]});
    EXPECT_EQ(services.names(u"Desktop"_s).size(), 3);
    run(u"empty-folders"_s, places);
    EXPECT_EQ(services.names(u"Desktop"_s), (QStringList{u"filled"_s, u"holds an empty one"_s}));
    EXPECT_EQ(services.names(u".Trash"_s), QStringList(u"empty"_s));
}

TEST_F(CleaningRunGuardsTest, takesAnEmptyFolderThatADesktopHasVisited)
{
    const QString place = services.folder(u"Desktop/visited"_s);
    services.file(u"Desktop/visited/.DS_Store"_s);
    run(u"empty-folders"_s, {place});
    EXPECT_EQ(services.names(u"Desktop"_s), QStringList());
}

TEST_F(CleaningRunGuardsTest, findsPickedFilesInAPlaceWhosePathIsOddlyWritten)
{
    services.file(u"Library/Logs/file"_s);
    const QString place = at(u"./Library//Logs"_s);
    run(u"logs"_s, {place}, {place + u"/file"_s});
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList());
}

TEST_F(CleaningRunGuardsTest, touchesNoPickedPathOutsideThePlaces)
{
    services.file(u"kept/file"_s);
    services.file(u"Library/Logs/folder/file"_s);
    services.file(u".Trash/folder/file"_s);
    services.folder(u"Desktop/empty"_s);
    services.folder(u"Desktop/found"_s);
    for (const QString &id : {u"logs"_s, u"trash"_s, u"old-downloads"_s, u"empty-folders"_s}) {
        const QString place = at(id == u"trash"           ? u".Trash"_s
                                 : id == u"empty-folders" ? u"Desktop/found"_s
                                                          : u"Library/Logs"_s);
        run(id, {place},
            {at(u"kept/file"_s), place, place + u'/', place + u"/../../kept/file"_s, place + u"/."_s,
             place + u"/folder/.."_s, place + u" beside"_s, u"/"_s, QString(), u"file"_s,
             at(u"Desktop/empty"_s)});
    }
    // Of empty folders the place itself is what is picked.
    EXPECT_EQ(services.test.recycler.recycled, QStringList(at(u"Desktop/found"_s)));
    EXPECT_EQ(services.names(u".Trash/folder"_s), QStringList(u"file"_s));
    EXPECT_EQ(services.names(u"kept"_s), QStringList(u"file"_s));
    EXPECT_EQ(services.names(u"Desktop"_s), QStringList(u"empty"_s));
}

TEST_F(CleaningRunGuardsTest, touchesNoPickedFileToWhichALinkLeads)
{
    services.file(u"kept/file"_s);
    for (const QString &place : {u"Library/Logs"_s, u".Trash"_s}) {
        services.link(place + u"/folder"_s, at(u"kept"_s)); // was a folder when its file was picked
        run(place == u".Trash" ? u"trash"_s : u"logs"_s, {at(place)}, {at(place + u"/folder/file"_s)});
    }
    EXPECT_EQ(services.names(u"kept"_s), QStringList(u"file"_s));
}

TEST_F(CleaningRunGuardsTest, keepsInTheTrashWhatTheSameRunHasMovedThere)
{
    services.file(u"Library/Logs/log"_s);
    services.file(u".Trash/old"_s);
    services.scan();
    services.tickWhole(u"trash"_s);
    services.tickWhole(u"logs"_s);
    EXPECT_EQ(services.ids(), (QStringList{u"logs"_s, u"trash"_s})) << "the Trash has its turn last";
    services.clean();
    EXPECT_EQ(services.names(u".Trash"_s), QStringList(u"log"_s));
}

TEST_F(CleaningRunGuardsTest, removesForGoodWhatTheTrashHoldsAlone)
{
    for (const QString &place :
         {u"Library/Logs"_s, u"Downloads"_s, u"Library/Caches/Google/Chrome"_s, u".npm/_cacache"_s})
        services.file(place + u"/file"_s);
    services.folder(u"Desktop/empty"_s);
    services.file(u".Trash/old"_s);
    services.scan();
    for (const QString &id : services.ids())
        services.tickWhole(id);
    services.clean();
    EXPECT_EQ(services.test.recycler.removed, QStringList(at(u".Trash/old"_s)));
}

TEST_F(CleaningRunGuardsTest, sparesWhatItMovesToTheTrashUnderThePathOfAPickedFile)
{
    const QString trashed = services.file(u".Trash/log"_s);
    services.file(u"Library/Logs/log"_s);
    services.scan();
    services.pick(u"trash"_s, {trashed});
    services.tickWhole(u"logs"_s);
    files::removeTree(trashed);
    services.clean();
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList());
    EXPECT_EQ(services.names(u".Trash"_s), QStringList(u"log"_s));
}

TEST_F(CleaningRunGuardsTest, sparesWhatTakesTheNameOfATrashedItemOnTheWay)
{
    services.file(u".Trash/folder/file"_s);
    services.file(u".Trash/old"_s);
    services.file(u"Library/Logs/log"_s);
    services.scan();
    services.tickWhole(u"trash"_s);
    services.tickWhole(u"logs"_s);
    replaceTrashedFolderOnTheWay();
    services.clean();
    EXPECT_EQ(services.names(u".Trash"_s), (QStringList{u"folder"_s, u"log"_s}));
}

TEST_F(CleaningRunGuardsTest, sparesWhatTakesThePathOfAPickedFileOnTheWay)
{
    const QString picked = services.file(u".Trash/folder/file"_s);
    services.file(u"Library/Logs/log"_s);
    services.scan();
    services.pick(u"trash"_s, {picked});
    services.tickWhole(u"logs"_s);
    replaceTrashedFolderOnTheWay();
    services.clean();
    EXPECT_EQ(services.names(u".Trash/folder"_s), QStringList(u"file"_s));
}

TEST_F(CleaningRunGuardsTest, takesNamesInAnyBytes)
{
    const QStringList names{u"new\nline"_s, u"it's"_s, paths::fromBytes("\xFF\xFE"), u"-rf"_s, u"..."_s};
    QStringList picked;
    for (const QString &name : names) {
        services.file(u"Library/Logs/"_s + name);
        picked << services.file(u".Trash/"_s + name + u" trashed"_s);
    }
    run(u"trash"_s, {at(u".Trash"_s)}, picked);
    EXPECT_EQ(services.names(u".Trash"_s), QStringList());
    run(u"logs"_s, {at(u"Library/Logs"_s)});
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList());
    EXPECT_EQ(services.names(u".Trash"_s).size(), names.size());
}

TEST(CleaningRun, leavesWhatAFolderHoldsThatNobodyMayWriteTo)
{
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        CleanupServices services;
        services.test.useDu("printf '100\\t'\n");
        for (const QString &place : {u"Library/Logs"_s, u".Trash"_s}) {
            services.file(place + u"/goes"_s);
            services.file(place + u"/read-only/stays"_s);
            services.test.temp.setMode(u"home/"_s + place + u"/read-only"_s, 0500);
        }
        services.file(u"Library/Caches/Google/Chrome/stays"_s);
        services.test.temp.setMode(u"home/Library/Caches/Google/Chrome"_s, 0500);
        services.scan();
        for (const QString &id : {u"browser-cache"_s, u"logs"_s, u"trash"_s})
            services.tickWhole(id);
        services.clean();
        EXPECT_EQ(services.names(u"Library/Caches/Google/Chrome"_s), QStringList(u"stays"_s));
        EXPECT_FALSE(services.names(u"Library/Logs"_s).contains(u"goes"_s));
        EXPECT_FALSE(services.names(u".Trash"_s).contains(u"read-only"_s)) << "its owner may open it up";
        EXPECT_EQ(services.madeHistory->entries().size(), 1U);
        EXPECT_FALSE(services.cleanup->isCleaning());
    }));
}
