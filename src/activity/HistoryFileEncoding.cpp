#include "activity/HistoryFileEncoding.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <limits>

namespace {

constexpr qsizetype mostBytesOfUnit = 6;   // what one UTF-16 unit can become: "\u001f"
constexpr char16_t byteOrderMark = 0xFEFF; // dropped by readers at the head of a text, unless it is escaped

/// Writes `unit`, one that a JSON text can't hold as it stands, or that readers lose.
char *writeEscaped(char *out, char16_t unit)
{
    constexpr char hex[] = "0123456789abcdef";
    *out++ = '\\';
    switch (unit) {
    case u'"':
    case u'\\':
        *out++ = static_cast<char>(unit);
        return out;
    case u'\n':
        *out++ = 'n';
        return out;
    case u'\r':
        *out++ = 'r';
        return out;
    case u'\t':
        *out++ = 't';
        return out;
    default:
        for (const char digit :
             {'u', hex[unit >> 12], hex[(unit >> 8) & 0xF], hex[(unit >> 4) & 0xF], hex[unit & 0xF]})
            *out++ = digit;
        return out;
    }
}

/// Writes a character beyond ASCII as UTF-8.
char *writeCharacter(char *out, char32_t character)
{
    const auto tail = [character](int shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x800) {
        *out++ = static_cast<char>(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            *out++ = static_cast<char>(0xE0 | (character >> 12));
        } else {
            *out++ = static_cast<char>(0xF0 | (character >> 18));
            *out++ = tail(12);
        }
        *out++ = tail(6);
    }
    *out++ = tail(0);
    return out;
}

void appendText(QByteArray &json, QStringView text)
{
    const qsizetype start = json.size();
    const qsizetype most = start + text.size() * mostBytesOfUnit + 2;
    if (most > json.capacity())
        json.reserve(std::max(most, 2 * json.capacity()));
    json.resize(most);
    char *out = json.data() + start;
    *out++ = '"';
    const char16_t *unit = text.utf16();
    const char16_t *end = unit + text.size();
    while (unit != end) {
        const char16_t current = *unit++;
        if (current < 0x20 || current == u'"' || current == u'\\' || current == byteOrderMark) {
            out = writeEscaped(out, current);
        } else if (current < 0x80) {
            *out++ = static_cast<char>(current);
        } else {
            char32_t character = current;
            if (QChar::isHighSurrogate(current) && unit != end && QChar::isLowSurrogate(*unit))
                character = QChar::surrogateToUcs4(current, *unit++);
            else if (QChar::isSurrogate(current))
                character = QChar::ReplacementCharacter;
            out = writeCharacter(out, character);
        }
    }
    *out++ = '"';
    json.truncate(out - json.constData());
}

void appendPaths(QByteArray &json, const QStringList &paths)
{
    json += '[';
    for (const QString &path : paths) {
        json += &path == &paths.first() ? "\n      " : ",\n      ";
        appendText(json, path);
    }
    json += paths.isEmpty() ? "]" : "\n    ]";
}

void appendEntry(QByteArray &json, const HistoryEntry &entry)
{
    json += "  {\n    \"bytesAffected\": " + QByteArray::number(entry.bytesAffected);
    if (entry.detail) {
        json += ",\n    \"detail\": ";
        appendText(json, *entry.detail);
    }
    json += ",\n    \"id\": \"" + entry.id.toByteArray(QUuid::WithoutBraces) + "\",\n    \"kind\": \"";
    json += QByteArrayView(history::rawText(entry.kind).data());
    json += "\",\n    \"paths\": ";
    appendPaths(json, entry.paths);
    json += entry.success ? ",\n    \"success\": true" : ",\n    \"success\": false";
    json += ",\n    \"timestamp\": \"" + historyfile::dateText(entry.timestamp) + "\",\n    \"title\": ";
    appendText(json, entry.title);
    json += "\n  }";
}

/// About what the entries will take, so that the text does not move while it grows.
qint64 expectedBytes(const std::vector<HistoryEntry> &entries)
{
    qsizetype room = 16;
    for (const HistoryEntry &entry : entries) {
        room += 512 + entry.title.size() + (entry.detail ? entry.detail->size() : 0);
        for (const QString &path : entry.paths)
            room += path.size() + 16;
    }
    return room + room / 8;
}

} // namespace

namespace historyfile {

QByteArray encode(const std::vector<HistoryEntry> &entries)
{
    return encodeWithin(std::numeric_limits<qint64>::max(), entries).json;
}

Encoded encodeWithin(qint64 room, const std::vector<HistoryEntry> &entries)
{
    const QByteArray end = "\n]\n";
    QByteArray json;
    json.reserve(std::min(room, expectedBytes(entries)));
    json += '[';
    size_t count = 0;
    for (const HistoryEntry &entry : entries) {
        const qsizetype before = json.size();
        json += count == 0 ? "\n" : ",\n";
        appendEntry(json, entry);
        if (json.size() > room - end.size()) {
            json.truncate(before);
            break;
        }
        ++count;
    }
    json += count == 0 ? QByteArray("]\n") : end;
    return {json, count};
}

QByteArray dateText(Date date)
{
    using namespace std::chrono;
    const auto moment = floor<seconds>(date);
    const auto midnight = floor<days>(moment);
    const year_month_day day(midnight);
    const hh_mm_ss time(moment - midnight);
    const std::array numbers = {static_cast<qint64>(static_cast<int>(day.year())),
                                static_cast<qint64>(static_cast<unsigned>(day.month())),
                                static_cast<qint64>(static_cast<unsigned>(day.day())),
                                static_cast<qint64>(time.hours().count()),
                                static_cast<qint64>(time.minutes().count()),
                                static_cast<qint64>(time.seconds().count())};
    QByteArray text;
    for (size_t i = 0; i < numbers.size(); ++i) {
        text += QByteArray::number(numbers[i]).rightJustified(i == 0 ? 4 : 2, '0');
        text += "--T::Z"[i];
    }
    return text;
}

} // namespace historyfile
