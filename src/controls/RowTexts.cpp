#include "controls/RowTexts.h"

#include "base/Text.h"

QString RowTexts::place(int row, int count)
{
    return QStringLiteral("%1 of %2").arg(row + 1).arg(count);
}

QString RowTexts::told(const QString &spoken, const QString &place)
{
    return text::joined({spoken, place}, u", ");
}

QString RowTexts::menuName()
{
    return QStringLiteral("Commands of the row");
}

QString RowTexts::lines(const QStringList &lines)
{
    return text::joined(lines, u"\n");
}

QString RowTexts::inARow(const QStringList &texts)
{
    return text::joined(texts, u" ");
}

QString RowTexts::figure(const QString &label, const QString &value)
{
    return QStringLiteral("%1: %2").arg(label, value);
}
