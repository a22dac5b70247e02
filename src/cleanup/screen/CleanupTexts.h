#pragma once

#include <QObject>
#include <QString>

/// The fixed texts of Smart Cleanup's screen.
class CleanupTexts
{
    Q_GADGET
    Q_PROPERTY(QString subtitle MEMBER subtitle CONSTANT)
    Q_PROPERTY(QString rescan MEMBER rescan CONSTANT)
    Q_PROPERTY(QString scanning MEMBER scanning CONSTANT)
    Q_PROPERTY(QString stopTip MEMBER stopTip CONSTANT)
    Q_PROPERTY(QString selectAll MEMBER selectAll CONSTANT)
    Q_PROPERTY(QString selectNone MEMBER selectNone CONSTANT)
    Q_PROPERTY(QString categories MEMBER categories CONSTANT)
    Q_PROPERTY(QString totalReclaimable MEMBER totalReclaimable CONSTANT)
    Q_PROPERTY(QString selected MEMBER selected CONSTANT)
    Q_PROPERTY(QString scanningText MEMBER scanningText CONSTANT)
    Q_PROPERTY(QString scanningDetail MEMBER scanningDetail CONSTANT)
    Q_PROPERTY(QString previewFiles MEMBER previewFiles CONSTANT)
    Q_PROPERTY(QString reviewed MEMBER reviewed CONSTANT)
    Q_PROPERTY(QString reveal MEMBER reveal CONSTANT)
    Q_PROPERTY(QString open MEMBER open CONSTANT)
    Q_PROPERTY(QString copyPath MEMBER copyPath CONSTANT)
    Q_PROPERTY(QString confirmTitle MEMBER confirmTitle CONSTANT)
    Q_PROPERTY(QString cancel MEMBER cancel CONSTANT)

public:
    QString subtitle = QStringLiteral(
        "Finds and removes temporary files, caches, and build artifacts that are safe to delete.");
    QString rescan = QStringLiteral("Rescan");
    QString scanning = QStringLiteral("Scanning...");
    QString stopTip = QStringLiteral("Stop scanning");
    QString selectAll = QStringLiteral("Select All");
    QString selectNone = QStringLiteral("Select None");
    QString categories = QStringLiteral("Categories");
    QString totalReclaimable = QStringLiteral("Total Reclaimable");
    QString selected = QStringLiteral("Selected");
    QString scanningText = QStringLiteral("Scanning for cleanable files…");
    QString scanningDetail =
        QStringLiteral("Checking browser caches, logs, Xcode, package manager caches, Downloads and Trash");
    QString previewFiles = QStringLiteral("Preview files");
    QString reviewed = QStringLiteral("I've reviewed these files");
    QString reveal = QStringLiteral("Reveal in Finder");
    QString open = QStringLiteral("Open");
    QString copyPath = QStringLiteral("Copy Path");
    QString confirmTitle = QStringLiteral("Confirm Cleanup");
    QString cancel = QStringLiteral("Cancel");
};
