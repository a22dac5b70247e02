#include "Json.h"

#include "base/Paths.h"
#include "UsageError.h"

#include <QJsonDocument>

#include <array>
#include <cstdio>
#include <utility>

namespace {

QByteArray standardInput()
{
    QByteArray all;
    std::array<char, 65536> chunk{};
    while (const size_t count = fread(chunk.data(), 1, chunk.size(), stdin))
        all.append(chunk.data(), static_cast<qsizetype>(count));
    return all;
}

void printDocument(const QJsonDocument &document)
{
    const QByteArray line = document.toJson(QJsonDocument::Compact) + '\n';
    fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
}

} // namespace

namespace json {

QJsonValue text(const QString &text)
{
    return paths::display(text);
}

QJsonValue id(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces);
}

QJsonValue date(Date date)
{
    if (date == dates::distantPast)
        return QJsonValue::Null;
    const auto day = std::chrono::floor<std::chrono::days>(date);
    const std::chrono::year_month_day calendar(day);
    const std::chrono::hh_mm_ss time(date - day);
    return QString::asprintf("%04d-%02u-%02uT%02d:%02d:%02d.%09dZ", static_cast<int>(calendar.year()),
                             static_cast<unsigned>(calendar.month()), static_cast<unsigned>(calendar.day()),
                             static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                             static_cast<int>(time.seconds().count()),
                             static_cast<int>(time.subseconds().count()));
}

void print(const QJsonArray &array)
{
    printDocument(QJsonDocument(array));
}

void print(const QJsonObject &object)
{
    printDocument(QJsonDocument(object));
}

ArrayPrinter::ArrayPrinter()
{
    fputc('[', stdout);
}

ArrayPrinter::~ArrayPrinter()
{
    fputs("]\n", stdout);
}

void ArrayPrinter::add(const QJsonObject &object)
{
    if (!std::exchange(isFirst_, false))
        fputc(',', stdout);
    const QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    fwrite(text.constData(), 1, static_cast<size_t>(text.size()), stdout);
}

QJsonArray readObjects()
{
    QJsonParseError failure;
    const QJsonDocument document = QJsonDocument::fromJson(standardInput(), &failure);
    if (failure.error != QJsonParseError::NoError)
        throw UsageError{
            QStringLiteral("bad JSON at byte %1: %2").arg(failure.offset).arg(failure.errorString())};
    if (!document.isArray())
        throw UsageError{QStringLiteral("bad JSON: an array is expected")};
    QJsonArray array = document.array();
    for (const auto &value : std::as_const(array)) {
        if (!value.isObject())
            throw UsageError{QStringLiteral("bad JSON: an array of objects is expected")};
    }
    return array;
}

} // namespace json
