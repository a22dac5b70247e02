#pragma once

#include <QObject>
#include <QString>

/// The fixed texts of the History sheet.
class HistoryTexts
{
    Q_GADGET
    Q_PROPERTY(QString reveal MEMBER reveal CONSTANT)
    Q_PROPERTY(QString clear MEMBER clear CONSTANT)
    Q_PROPERTY(QString clearTip MEMBER clearTip CONSTANT)
    Q_PROPERTY(QString close MEMBER close CONSTANT)
    Q_PROPERTY(QString filters MEMBER filters CONSTANT)
    Q_PROPERTY(QString failed MEMBER failed CONSTANT)
    Q_PROPERTY(QString confirmTitle MEMBER confirmTitle CONSTANT)
    Q_PROPERTY(QString confirmText MEMBER confirmText CONSTANT)
    Q_PROPERTY(QString cancel MEMBER cancel CONSTANT)

public:
    QString reveal = QStringLiteral("Reveal");
    QString clear = QStringLiteral("Clear");
    QString clearTip = QStringLiteral("Wipe all entries (files already trashed stay trashed)");
    QString close = QStringLiteral("Close");
    QString filters = QStringLiteral("Kinds of entries");
    QString failed = QStringLiteral("FAILED");
    QString confirmTitle = QStringLiteral("Clear all history?");
    QString confirmText = QStringLiteral(
        "Deletes the activity log. Files already moved to Trash stay there. This can't be undone.");
    QString cancel = QStringLiteral("Cancel");
};
