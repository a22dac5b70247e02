#pragma once

#include <QObject>
#include <QString>

/// The fixed texts of the Disk Analyzer's screen.
class AnalyzerTexts
{
    Q_GADGET
    Q_PROPERTY(QString rescan MEMBER rescan CONSTANT)
    Q_PROPERTY(QString changeFolder MEMBER changeFolder CONSTANT)
    Q_PROPERTY(QString scanning MEMBER scanning CONSTANT)
    Q_PROPERTY(QString cancel MEMBER cancel CONSTANT)
    Q_PROPERTY(QString cancelTip MEMBER cancelTip CONSTANT)
    Q_PROPERTY(QString analyzing MEMBER analyzing CONSTANT)
    Q_PROPERTY(QString scanStopped MEMBER scanStopped CONSTANT)
    Q_PROPERTY(QString stopping MEMBER stopping CONSTANT)
    Q_PROPERTY(QString goBack MEMBER goBack CONSTANT)
    Q_PROPERTY(QString home MEMBER home CONSTANT)
    Q_PROPERTY(QString wayHere MEMBER wayHere CONSTANT)
    Q_PROPERTY(QString openInFinder MEMBER openInFinder CONSTANT)
    Q_PROPERTY(QString visualMap MEMBER visualMap CONSTANT)
    Q_PROPERTY(QString map MEMBER map CONSTANT)
    Q_PROPERTY(QString emptyMap MEMBER emptyMap CONSTANT)
    Q_PROPERTY(QString nameColumn MEMBER nameColumn CONSTANT)
    Q_PROPERTY(QString sizeColumn MEMBER sizeColumn CONSTANT)
    Q_PROPERTY(QString shareColumn MEMBER shareColumn CONSTANT)
    Q_PROPERTY(QString loadingContents MEMBER loadingContents CONSTANT)
    Q_PROPERTY(QString emptyDirectory MEMBER emptyDirectory CONSTANT)
    Q_PROPERTY(QString reveal MEMBER reveal CONSTANT)
    Q_PROPERTY(QString copyPath MEMBER copyPath CONSTANT)
    Q_PROPERTY(QString openInTerminal MEMBER openInTerminal CONSTANT)

public:
    QString rescan = QStringLiteral("Rescan");
    QString changeFolder = QStringLiteral("Change Folder");
    QString scanning = QStringLiteral("Scanning...");
    QString cancel = QStringLiteral("Cancel");
    QString cancelTip = QStringLiteral("Stop scanning");
    QString analyzing = QStringLiteral("Analyzing disk usage...");
    QString stopping = QStringLiteral("Stopping…");
    QString scanStopped = QStringLiteral("Scan stopped");
    QString goBack = QStringLiteral("Go back");
    QString home = QStringLiteral("Home");
    QString wayHere = QStringLiteral("Folders on the way here");
    QString openInFinder = QStringLiteral("Open in Finder");
    QString visualMap = QStringLiteral("VISUAL MAP");
    QString map = QStringLiteral("Map of what takes the most space");
    QString emptyMap = QStringLiteral("Nothing here takes any space");
    QString nameColumn = QStringLiteral("Name");
    QString sizeColumn = QStringLiteral("Size");
    QString shareColumn = QStringLiteral("% of Parent");
    QString loadingContents = QStringLiteral("Loading contents...");
    QString emptyDirectory = QStringLiteral("Empty directory");
    QString reveal = QStringLiteral("Reveal in Finder");
    QString copyPath = QStringLiteral("Copy Path");
    QString openInTerminal = QStringLiteral("Open in Terminal");
};
