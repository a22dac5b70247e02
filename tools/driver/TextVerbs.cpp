// Verbs of the formatters and the settings.

#include "Arguments.h"
#include "common/Formatters.h"
#include "common/SettingsKeys.h"
#include "Json.h"
#include "UsageError.h"
#include "Verbs.h"

#include <QLocale>

#include <cstdio>

namespace {

void bytes(const Arguments &arguments)
{
    QStringList lines;
    for (qsizetype i = 0; i < arguments.operands().size(); ++i) {
        const qint64 count = arguments.integer(i);
        if (count != clampedBytes(count))
            throw UsageError{QStringLiteral("%1 has no text: counts go from 0 to below 1024 TB").arg(count)};
        lines.append(formatBytes(count));
    }
    for (const QString &line : lines)
        puts(qPrintable(line));
}

QString shortest(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

void colour(const Arguments &arguments)
{
    for (const QString &text : arguments.operands()) {
        const Color color = colorFromHex(text);
        const QStringList parts = {shortest(color.red), shortest(color.green), shortest(color.blue),
                                   shortest(color.alpha)};
        puts(qPrintable(parts.join(u' ')));
    }
}

void defaults(const Arguments &)
{
    json::print(QJsonObject::fromVariantMap(settings::registeredDefaults()));
}

} // namespace

std::vector<Verb> verbs::ofTexts()
{
    return {
        {QStringLiteral("bytes"),
         QStringLiteral("N..."),
         QStringLiteral("the text of each byte count, a line each"),
         1,
         anyNumber,
         {},
         bytes},
        {QStringLiteral("colour"),
         QStringLiteral("TEXT..."),
         QStringLiteral("red, green, blue and alpha of each text from 0 to 1, a line each"),
         1,
         anyNumber,
         {},
         colour},
        {QStringLiteral("defaults"),
         {},
         QStringLiteral("the registered values of the settings as JSON"),
         0,
         0,
         {},
         defaults},
    };
}
