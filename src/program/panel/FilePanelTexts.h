#pragma once

#include <QObject>
#include <QString>

/// The fixed texts of the program's own panels for a folder and for saving.
class FilePanelTexts
{
    Q_GADGET
    Q_PROPERTY(QString places MEMBER places CONSTANT)
    Q_PROPERTY(QString path MEMBER path CONSTANT)
    Q_PROPERTY(QString entries MEMBER entries CONSTANT)
    Q_PROPERTY(QString up MEMBER up CONSTANT)
    Q_PROPERTY(QString hidden MEMBER hidden CONSTANT)
    Q_PROPERTY(QString newFolder MEMBER newFolder CONSTANT)
    Q_PROPERTY(QString newFolderName MEMBER newFolderName CONSTANT)
    Q_PROPERTY(QString create MEMBER create CONSTANT)
    Q_PROPERTY(QString fileName MEMBER fileName CONSTANT)
    Q_PROPERTY(QString cancel MEMBER cancel CONSTANT)
    Q_PROPERTY(QString close MEMBER close CONSTANT)
    Q_PROPERTY(QString loading MEMBER loading CONSTANT)
    Q_PROPERTY(QString replaceDetail MEMBER replaceDetail CONSTANT)
    Q_PROPERTY(QString replace MEMBER replace CONSTANT)

public:
    QString places = QStringLiteral("PLACES");
    QString path = QStringLiteral("Path");
    QString entries = QStringLiteral("Content");
    QString up = QStringLiteral("Enclosing folder");
    QString hidden = QStringLiteral("Hidden files");
    QString newFolder = QStringLiteral("New Folder");
    QString newFolderName = QStringLiteral("Name of the new folder");
    QString create = QStringLiteral("Create");
    QString fileName = QStringLiteral("Name");
    QString cancel = QStringLiteral("Cancel");
    QString close = QStringLiteral("Close");
    QString loading = QStringLiteral("Loading…");
    QString replaceDetail = QStringLiteral("Saving replaces what it holds.");
    QString replace = QStringLiteral("Replace");
};
