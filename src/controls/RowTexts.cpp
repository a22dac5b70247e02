#include "controls/RowTexts.h"

QString RowTexts::place(int row, int count)
{
    return QStringLiteral("%1 of %2").arg(row + 1).arg(count);
}

QString RowTexts::told(const QString &spoken, const QString &place)
{
    return spoken.isEmpty() ? place : spoken + QStringLiteral(", ") + place;
}

QString RowTexts::menuName()
{
    return QStringLiteral("Commands of the row");
}

QString RowTexts::lines(const QStringList &lines)
{
    QStringList shown = lines;
    shown.removeAll(QString());
    return shown.join(u'\n');
}
