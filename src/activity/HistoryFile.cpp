#include "activity/HistoryFile.h"

#include "base/Error.h"
#include "base/Paths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include <chrono>

namespace {

Error fault(const QString &description)
{
    return {historyfile::errorDomain, 1, description};
}

/// The value of a key in one entry; throws Error when it has another type.
QJsonValue member(const QJsonObject &object, QLatin1StringView key, QJsonValue::Type type)
{
    QJsonValue value = object.value(key);
    if (value.isUndefined())
        throw fault(QStringLiteral("\"%1\" is missing").arg(key));
    if (value.type() != type)
        throw fault(QStringLiteral("\"%1\" has the wrong type").arg(key));
    return value;
}

QString textMember(const QJsonObject &object, QLatin1StringView key)
{
    // The escapes of a JSON text can spell halves of characters.
    return paths::display(member(object, key, QJsonValue::String).toString());
}

QUuid idMember(const QJsonObject &object)
{
    const QString text = textMember(object, QLatin1StringView("id"));
    const QUuid id = QUuid::fromString(text);
    // The library also takes other forms, and gives the null id for what is none.
    if (id.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) != 0)
        throw fault(QStringLiteral("\"id\" is no UUID"));
    return id;
}

Date timestampMember(const QJsonObject &object)
{
    const auto date = historyfile::dateOfText(textMember(object, QLatin1StringView("timestamp")));
    if (!date)
        throw fault(QStringLiteral("\"timestamp\" is no date in UTC with whole seconds"));
    return *date;
}

HistoryEntry::Kind kindMember(const QJsonObject &object)
{
    const auto kind = history::kindNamed(textMember(object, QLatin1StringView("kind")));
    if (!kind)
        throw fault(QStringLiteral("\"kind\" is unknown"));
    return *kind;
}

QStringList pathsMember(const QJsonObject &object)
{
    QStringList texts;
    for (const auto &value : member(object, QLatin1StringView("paths"), QJsonValue::Array).toArray()) {
        if (!value.isString())
            throw fault(QStringLiteral("\"paths\" holds something that is no text"));
        texts << paths::display(value.toString());
    }
    return texts;
}

qint64 bytesMember(const QJsonObject &object)
{
    const QJsonValue value = member(object, QLatin1StringView("bytesAffected"), QJsonValue::Double);
    // A number that is not whole, or too large, gives each time the other default.
    const qint64 bytes = value.toInteger(0);
    if (bytes == 0 && value.toInteger(1) == 1)
        throw fault(QStringLiteral("\"bytesAffected\" is no whole number of 64 bits"));
    return bytes;
}

std::optional<QString> detailMember(const QJsonObject &object)
{
    constexpr QLatin1StringView key("detail");
    const QJsonValue value = object.value(key);
    return value.isUndefined() || value.isNull() ? std::nullopt : std::optional(textMember(object, key));
}

HistoryEntry entryOf(const QJsonValue &value)
{
    if (!value.isObject())
        throw fault(QStringLiteral("it is no object"));
    const QJsonObject object = value.toObject();
    return {.id = idMember(object),
            .timestamp = timestampMember(object),
            .kind = kindMember(object),
            .title = textMember(object, QLatin1StringView("title")),
            .paths = pathsMember(object),
            .bytesAffected = bytesMember(object),
            .success = member(object, QLatin1StringView("success"), QJsonValue::Bool).toBool(),
            .detail = detailMember(object)};
}

/// The number that the digits from `first` on make; none when one of them is no digit.
std::optional<int> digits(QStringView text, qsizetype first, qsizetype count)
{
    int number = 0;
    for (const QChar character : text.sliced(first, count)) {
        if (character < u'0' || character > u'9')
            return std::nullopt;
        number = number * 10 + (character.unicode() - u'0');
    }
    return number;
}

} // namespace

namespace historyfile {

std::vector<HistoryEntry> decode(const QByteArray &json)
{
    if (!json.isValidUtf8())
        throw fault(QStringLiteral("The file is not UTF-8."));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        throw fault(QStringLiteral("The file is not JSON: %1 at byte %2.")
                        .arg(error.errorString())
                        .arg(error.offset));
    if (!document.isArray())
        throw fault(QStringLiteral("The file holds no list."));
    std::vector<HistoryEntry> entries;
    for (const auto &value : document.array()) {
        try {
            entries.push_back(entryOf(value));
        } catch (const Error &reason) {
            throw fault(QStringLiteral("Entry %1: %2.").arg(entries.size() + 1).arg(reason.description));
        }
    }
    return entries;
}

std::optional<Date> dateOfText(QStringView text)
{
    const QStringView shape = u"0000-00-00T00:00:00Z";
    if (text.size() != shape.size())
        return std::nullopt;
    for (qsizetype i = 0; i < shape.size(); ++i) {
        if (shape[i] != u'0' && text[i] != shape[i])
            return std::nullopt;
    }
    const auto year = digits(text, 0, 4);
    const auto month = digits(text, 5, 2);
    const auto day = digits(text, 8, 2);
    const auto hour = digits(text, 11, 2);
    const auto minute = digits(text, 14, 2);
    const auto second = digits(text, 17, 2);
    if (!year || !month || !day || !hour || !minute || !second || *hour > 23 || *minute > 59 || *second > 59)
        return std::nullopt;
    const std::chrono::year_month_day date(std::chrono::year(*year),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day)));
    if (!date.ok())
        return std::nullopt;
    // In 64-bit seconds, which any year has room in.
    const std::chrono::seconds seconds = std::chrono::sys_days(date).time_since_epoch()
                                         + std::chrono::hours(*hour) + std::chrono::minutes(*minute)
                                         + std::chrono::seconds(*second);
    return dates::fromUnix(seconds.count(), 0);
}

} // namespace historyfile
