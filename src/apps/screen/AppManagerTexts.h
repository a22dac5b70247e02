#pragma once

#include <QObject>
#include <QString>

/// The fixed texts of the App Manager's screen.
class AppManagerTexts
{
    Q_GADGET
    Q_PROPERTY(QString rescan MEMBER rescan CONSTANT)
    Q_PROPERTY(QString stopTip MEMBER stopTip CONSTANT)
    Q_PROPERTY(QString exportList MEMBER exportList CONSTANT)
    Q_PROPERTY(QString searchField MEMBER searchField CONSTANT)
    Q_PROPERTY(QString clearSearch MEMBER clearSearch CONSTANT)
    Q_PROPERTY(QString sortBy MEMBER sortBy CONSTANT)
    Q_PROPERTY(QString installed MEMBER installed CONSTANT)
    Q_PROPERTY(QString totalSize MEMBER totalSize CONSTANT)
    Q_PROPERTY(QString ghostFiles MEMBER ghostFiles CONSTANT)
    Q_PROPERTY(QString clearSelection MEMBER clearSelection CONSTANT)
    Q_PROPERTY(QString selectAll MEMBER selectAll CONSTANT)
    Q_PROPERTY(QString selectNone MEMBER selectNone CONSTANT)
    Q_PROPERTY(QString openApp MEMBER openApp CONSTANT)
    Q_PROPERTY(QString reveal MEMBER reveal CONSTANT)
    Q_PROPERTY(QString copyBundleID MEMBER copyBundleID CONSTANT)
    Q_PROPERTY(QString copyPath MEMBER copyPath CONSTANT)
    Q_PROPERTY(QString showDetails MEMBER showDetails CONSTANT)
    Q_PROPERTY(QString showInFinder MEMBER showInFinder CONSTANT)
    Q_PROPERTY(QString sizeBreakdown MEMBER sizeBreakdown CONSTANT)
    Q_PROPERTY(QString location MEMBER location CONSTANT)
    Q_PROPERTY(QString uninstallTip MEMBER uninstallTip CONSTANT)
    Q_PROPERTY(QString bulkPane MEMBER bulkPane CONSTANT)
    Q_PROPERTY(QString files MEMBER files CONSTANT)
    Q_PROPERTY(QString categories MEMBER categories CONSTANT)
    Q_PROPERTY(QString total MEMBER total CONSTANT)
    Q_PROPERTY(QString sizeByCategory MEMBER sizeByCategory CONSTANT)
    Q_PROPERTY(QString filesHead MEMBER filesHead CONSTANT)
    Q_PROPERTY(QString ghostFoot MEMBER ghostFoot CONSTANT)
    Q_PROPERTY(QString sheetMessage MEMBER sheetMessage CONSTANT)
    Q_PROPERTY(QString associatedFiles MEMBER associatedFiles CONSTANT)
    Q_PROPERTY(QString totalToRemove MEMBER totalToRemove CONSTANT)
    Q_PROPERTY(QString cancel MEMBER cancel CONSTANT)
    Q_PROPERTY(QString uninstall MEMBER uninstall CONSTANT)
    Q_PROPERTY(QString moveToTrash MEMBER moveToTrash CONSTANT)
    Q_PROPERTY(QString retry MEMBER retry CONSTANT)
    Q_PROPERTY(QString retryNote MEMBER retryNote CONSTANT)
    Q_PROPERTY(QString revealNote MEMBER revealNote CONSTANT)
    Q_PROPERTY(QString dismiss MEMBER dismiss CONSTANT)

public:
    QString rescan = QStringLiteral("Refresh");
    QString stopTip = QStringLiteral("Stop scanning");
    QString exportList = QStringLiteral("Export");
    QString searchField = QStringLiteral("Search apps...");
    QString clearSearch = QStringLiteral("Clear search");
    QString sortBy = QStringLiteral("Sort by");
    QString installed = QStringLiteral("Installed");
    QString totalSize = QStringLiteral("Total Size");
    QString ghostFiles = QStringLiteral("Ghost Files");
    QString clearSelection = QStringLiteral("Clear selection");
    QString selectAll = QStringLiteral("Select All");
    QString selectNone = QStringLiteral("Select None");
    QString openApp = QStringLiteral("Open App");
    QString reveal = QStringLiteral("Reveal in Finder");
    QString copyBundleID = QStringLiteral("Copy Bundle ID");
    QString copyPath = QStringLiteral("Copy App Path");
    QString showDetails = QStringLiteral("Show Details");
    QString showInFinder = QStringLiteral("Show in Finder");
    QString sizeBreakdown = QStringLiteral("SIZE BREAKDOWN");
    QString location = QStringLiteral("LOCATION");
    QString uninstallTip = QStringLiteral("Moves the app and selected associated files to Trash");
    QString bulkPane = QStringLiteral(
        "Each app is moved to Trash with its associated cache, preferences, container, and log files.");
    QString files = QStringLiteral("Files");
    QString categories = QStringLiteral("Categories");
    QString total = QStringLiteral("Total");
    QString sizeByCategory = QStringLiteral("SIZE BY CATEGORY");
    QString filesHead = QStringLiteral("FILES");
    QString ghostFoot = QStringLiteral("Selected files will be moved to Trash");
    QString sheetMessage = QStringLiteral("The app and selected associated files will be moved to Trash.");
    QString associatedFiles = QStringLiteral("Associated Files");
    QString totalToRemove = QStringLiteral("Total to remove:");
    QString cancel = QStringLiteral("Cancel");
    QString uninstall = QStringLiteral("Uninstall");
    QString moveToTrash = QStringLiteral("Move to Trash");
    QString retry = QStringLiteral("Retry with password");
    QString retryNote = QStringLiteral(
        "macOS will prompt for your password (or Touch ID) and remove the app with elevated privileges.");
    QString dismiss = QStringLiteral("Dismiss");
    QString revealNote = QStringLiteral("Open the app in Finder so you can drag it to the Trash manually.");
};
