#include "controls/RowTexts.h"

QString RowTexts::told(const QString &spoken, int row, int count)
{
    const QString place = QString::number(row + 1) + QStringLiteral(" of ") + QString::number(count);
    return spoken.isEmpty() ? place : spoken + QStringLiteral(", ") + place;
}

QString RowTexts::lines(const QStringList &lines)
{
    QStringList shown = lines;
    shown.removeAll(QString());
    return shown.join(u'\n');
}
