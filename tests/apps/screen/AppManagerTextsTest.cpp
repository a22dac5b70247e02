#include "apps/screen/AppManagerTexts.h"

#include "apps/screen/AppManagerHome.h"
#include "apps/screen/AppTabTexts.h"

#include <QMap>
#include <QMetaProperty>

using namespace Qt::StringLiterals;

namespace {

using Texts = QMap<QString, QString>;

/// The fixed texts of the App Manager's screen.
using AppManagerTextsTest = AppManagerHome;

/// All that a gadget has, by their properties' names.
template<typename Gadget>
Texts textsOf(const Gadget &gadget)
{
    Texts texts;
    const QMetaObject &meta = Gadget::staticMetaObject;
    for (int i = 0; i < meta.propertyCount(); ++i)
        texts.insert(QString::fromLatin1(meta.property(i).name()),
                     meta.property(i).readOnGadget(&gadget).toString());
    return texts;
}

void compare(const Texts &texts, const Texts &expected)
{
    EXPECT_EQ(texts.keys(), expected.keys());
    for (auto text = expected.begin(); text != expected.end(); ++text)
        EXPECT_EQ(texts.value(text.key()), *text) << text.key().toStdString();
}

Texts headAndListTexts()
{
    return {{u"rescan"_s, u"Refresh"_s},
            {u"stopTip"_s, u"Stop scanning"_s},
            {u"exportList"_s, u"Export"_s},
            {u"searchField"_s, u"Search apps..."_s},
            {u"clearSearch"_s, u"Clear search"_s},
            {u"sortBy"_s, u"Sort by"_s},
            {u"installed"_s, u"Installed"_s},
            {u"totalSize"_s, u"Total Size"_s},
            {u"ghostFiles"_s, u"Ghost Files"_s},
            {u"clearSelection"_s, u"Clear selection"_s},
            {u"selectAll"_s, u"Select All"_s},
            {u"selectNone"_s, u"Select None"_s},
            {u"openApp"_s, u"Open App"_s},
            {u"reveal"_s, u"Reveal in Finder"_s},
            {u"copyBundleID"_s, u"Copy Bundle ID"_s},
            {u"copyPath"_s, u"Copy App Path"_s},
            {u"showDetails"_s, u"Show Details"_s}};
}

Texts paneTexts()
{
    return {{u"showInFinder"_s, u"Show in Finder"_s},
            {u"sizeBreakdown"_s, u"SIZE BREAKDOWN"_s},
            {u"location"_s, u"LOCATION"_s},
            {u"uninstallTip"_s, u"Moves the app and selected associated files to Trash"_s},
            {u"bulkPane"_s, u"Each app is moved to Trash with its associated cache, preferences, container, "
                            u"and log files."_s},
            {u"files"_s, u"Files"_s},
            {u"categories"_s, u"Categories"_s},
            {u"total"_s, u"Total"_s},
            {u"sizeByCategory"_s, u"SIZE BY CATEGORY"_s},
            {u"filesHead"_s, u"FILES"_s},
            {u"ghostFoot"_s, u"Selected files will be moved to Trash"_s}};
}

Texts removalTexts()
{
    return {{u"sheetMessage"_s, u"The app and selected associated files will be moved to Trash."_s},
            {u"associatedFiles"_s, u"Associated Files"_s},
            {u"totalToRemove"_s, u"Total to remove:"_s},
            {u"cancel"_s, u"Cancel"_s},
            {u"uninstall"_s, u"Uninstall"_s},
            {u"moveToTrash"_s, u"Move to Trash"_s},
            {u"retry"_s, u"Retry with password"_s},
            {u"retryNote"_s, u"macOS will prompt for your password (or Touch ID) and remove the app with "
                             u"elevated privileges."_s},
            {u"dismiss"_s, u"Dismiss"_s},
            {u"revealNote"_s, u"Open the app in Finder so you can drag it to the Trash manually."_s}};
}

} // namespace

TEST_F(AppManagerTextsTest, areTheseAndNoOthers)
{
    Texts expected = headAndListTexts();
    expected.insert(paneTexts());
    expected.insert(removalTexts());
    compare(textsOf(view->texts()), expected);
}

TEST_F(AppManagerTextsTest, differFromTabToTab)
{
    EXPECT_EQ(view->tabLabels(), QStringList({u"Installed"_s, u"Ghost Files"_s}));
    compare(textsOf(AppTabTexts::ofInstalled(KeyStyle::signs)),
            {{u"rescanTip"_s, u"Re-scan installed apps (⌘R)"_s},
             {u"exportTip"_s, u"Export installed apps"_s},
             {u"scanning"_s, u"Scanning applications..."_s},
             {u"paneTitle"_s, u"Select an app"_s},
             {u"paneText"_s, u"Click on an app to see details and uninstall options"_s}});
    compare(textsOf(AppTabTexts::ofGhosts(KeyStyle::signs)),
            {{u"rescanTip"_s, u"Re-scan ghost files (⌘R)"_s},
             {u"exportTip"_s, u"Export ghost files"_s},
             {u"scanning"_s, u"Scanning for ghost files..."_s},
             {u"paneTitle"_s, u"Select a ghost app"_s},
             {u"paneText"_s, u"Click on a ghost app to see its leftover files"_s}});
}
