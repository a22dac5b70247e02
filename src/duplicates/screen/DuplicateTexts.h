#pragma once

#include <QObject>
#include <QString>

/// The fixed texts of the Duplicate Finder's screen.
class DuplicateTexts
{
    Q_GADGET
    Q_PROPERTY(QString stopTip MEMBER stopTip CONSTANT)
    Q_PROPERTY(QString groups MEMBER groups CONSTANT)
    Q_PROPERTY(QString files MEMBER files CONSTANT)
    Q_PROPERTY(QString wasted MEMBER wasted CONSTANT)
    Q_PROPERTY(QString toDelete MEMBER toDelete CONSTANT)
    Q_PROPERTY(QString filters MEMBER filters CONSTANT)
    Q_PROPERTY(QString selectAllDuplicates MEMBER selectAllDuplicates CONSTANT)
    Q_PROPERTY(QString selectNone MEMBER selectNone CONSTANT)
    Q_PROPERTY(QString keepNewest MEMBER keepNewest CONSTANT)
    Q_PROPERTY(QString keepOldest MEMBER keepOldest CONSTANT)
    Q_PROPERTY(QString newest MEMBER newest CONSTANT)
    Q_PROPERTY(QString oldest MEMBER oldest CONSTANT)
    Q_PROPERTY(QString moveToTrash MEMBER moveToTrash CONSTANT)
    Q_PROPERTY(QString scanDirectories MEMBER scanDirectories CONSTANT)
    Q_PROPERTY(QString noScanPaths MEMBER noScanPaths CONSTANT)
    Q_PROPERTY(QString changeFolderTip MEMBER changeFolderTip CONSTANT)
    Q_PROPERTY(QString removeScanPathTip MEMBER removeScanPathTip CONSTANT)
    Q_PROPERTY(QString removeScanPath MEMBER removeScanPath CONSTANT)
    Q_PROPERTY(QString addFolder MEMBER addFolder CONSTANT)
    Q_PROPERTY(QString ignoreDirectories MEMBER ignoreDirectories CONSTANT)
    Q_PROPERTY(QString overridden MEMBER overridden CONSTANT)
    Q_PROPERTY(QString removeExclusionTip MEMBER removeExclusionTip CONSTANT)
    Q_PROPERTY(QString addExclusion MEMBER addExclusion CONSTANT)
    Q_PROPERTY(QString lockNote MEMBER lockNote CONSTANT)
    Q_PROPERTY(QString reset MEMBER reset CONSTANT)
    Q_PROPERTY(QString resetTip MEMBER resetTip CONSTANT)
    Q_PROPERTY(QString minFileSize MEMBER minFileSize CONSTANT)
    Q_PROPERTY(QString reveal MEMBER reveal CONSTANT)
    Q_PROPERTY(QString open MEMBER open CONSTANT)
    Q_PROPERTY(QString quickLook MEMBER quickLook CONSTANT)
    Q_PROPERTY(QString copyPath MEMBER copyPath CONSTANT)
    Q_PROPERTY(QString keepOnly MEMBER keepOnly CONSTANT)
    Q_PROPERTY(QString confirmTitle MEMBER confirmTitle CONSTANT)
    Q_PROPERTY(QString cancel MEMBER cancel CONSTANT)
    Q_PROPERTY(QString dropHere MEMBER dropHere CONSTANT)

public:
    QString stopTip = QStringLiteral("Stop scanning");
    QString groups = QStringLiteral("Groups");
    QString files = QStringLiteral("Files");
    QString wasted = QStringLiteral("Wasted");
    QString toDelete = QStringLiteral("To delete");
    QString filters = QStringLiteral("Types of files");
    QString selectAllDuplicates = QStringLiteral("Select All Duplicates");
    QString selectNone = QStringLiteral("Select None");
    QString keepNewest = QStringLiteral("Keep Newest");
    QString keepOldest = QStringLiteral("Keep Oldest");
    QString newest = QStringLiteral("Newest");
    QString oldest = QStringLiteral("Oldest");
    QString moveToTrash = QStringLiteral("Move to Trash");
    QString scanDirectories = QStringLiteral("Scan Directories");
    QString noScanPaths = QStringLiteral("No folders selected — add one to start scanning.");
    QString changeFolderTip = QStringLiteral("Click to change this folder");
    QString removeScanPathTip = QStringLiteral("Remove from scan list");
    QString removeScanPath = QStringLiteral("Remove scan path");
    QString addFolder = QStringLiteral("Add Folder");
    QString ignoreDirectories = QStringLiteral("Ignore Directories");
    QString overridden = QStringLiteral("· overridden");
    QString removeExclusionTip = QStringLiteral("Remove exclusion");
    QString addExclusion = QStringLiteral("Add Exclusion");
    QString lockNote = QStringLiteral(
        "🔒 folders hold system files. Add one as a scan folder to override (advanced users only).");
    QString reset = QStringLiteral("Reset to defaults");
    QString resetTip =
        QStringLiteral("Restore Duplicate Finder's scan + ignore lists to their original defaults (~ as the "
                       "only scan path; built-in locks for ~/Library, .Trash, node_modules, .git, …).");
    QString minFileSize = QStringLiteral("Min file size:");
    QString reveal = QStringLiteral("Reveal in Finder");
    QString open = QStringLiteral("Open");
    QString quickLook = QStringLiteral("Quick Look");
    QString copyPath = QStringLiteral("Copy Path");
    QString keepOnly = QStringLiteral("Keep Only This (mark others for deletion)");
    QString confirmTitle = QStringLiteral("Confirm Deletion");
    QString cancel = QStringLiteral("Cancel");
    QString dropHere = QStringLiteral("Drop folders here to scan them");
};
