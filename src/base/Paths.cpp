#include "base/Paths.h"

#include <QStringDecoder>
#include <QStringList>

#include <algorithm>

namespace {

constexpr char16_t escapeBase = 0xDC00; // plus the byte, 0x80 to 0xFF

bool isEscape(QChar character)
{
    return character.unicode() >= 0xDC80 && character.unicode() <= 0xDCFF;
}

/// Length of the well-formed UTF-8 sequence at the start of `bytes`, 0 when it is not one. The second byte's
/// range keeps out overlong forms, surrogates and what lies above U+10FFFF.
qsizetype sequenceLength(QByteArrayView bytes)
{
    const auto at = [bytes](qsizetype index) { return static_cast<uchar>(bytes[index]); };
    const uchar lead = at(0);
    if (lead < 0x80)
        return 1;
    const qsizetype length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length)
        return 0;
    const uchar low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const uchar high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (at(1) < low || at(1) > high)
        return 0;
    for (qsizetype i = 2; i < length; ++i) {
        if ((at(i) & 0xC0) != 0x80)
            return 0;
    }
    return length;
}

/// The text of well-formed UTF-8. A byte order mark at its start belongs to the name; QString drops it.
QString decoded(QByteArrayView utf8)
{
    if (!utf8.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(utf8);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(utf8);
}

/// True when the character at `index` is one half of a surrogate pair that stands whole in the text.
bool isPaired(QStringView text, qsizetype index)
{
    return text[index].isLowSurrogate() && index > 0 && text[index - 1].isHighSurrogate();
}

} // namespace

namespace paths {

QString fromBytes(QByteArrayView bytes)
{
    if (bytes.isValidUtf8())
        return decoded(bytes);
    QString text;
    text.reserve(bytes.size());
    for (qsizetype i = 0; i < bytes.size();) {
        const qsizetype length = sequenceLength(bytes.sliced(i));
        if (length == 0)
            text += QChar(static_cast<char16_t>(escapeBase + static_cast<uchar>(bytes[i])));
        else
            text += decoded(bytes.sliced(i, length));
        i += length == 0 ? 1 : length;
    }
    return text;
}

QByteArray toBytes(QStringView path)
{
    QByteArray bytes;
    bytes.reserve(path.size());
    qsizetype start = 0; // of the run of ordinary characters
    for (qsizetype i = 0; i < path.size(); ++i) {
        if (!isEscape(path[i]) || isPaired(path, i))
            continue;
        bytes += path.sliced(start, i - start).toUtf8();
        bytes += static_cast<char>(path[i].unicode() - escapeBase);
        start = i + 1;
    }
    return start == 0 ? path.toUtf8() : bytes + path.sliced(start).toUtf8();
}

QString display(const QString &text)
{
    QString shown = text;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool loneHigh =
            text[i].isHighSurrogate() && (i + 1 == text.size() || !text[i + 1].isLowSurrogate());
        if (loneHigh || (text[i].isLowSurrogate() && !isPaired(text, i)))
            shown[i] = QChar::ReplacementCharacter;
    }
    return shown;
}

QString inOneLine(const QString &text)
{
    // Signs that most fonts of text have; they lack the pictures of control characters.
    constexpr QChar turn = u'\u21B5';
    constexpr QChar control = u'\u2327';
    QString line = display(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar &character : line) {
        const char16_t code = character.unicode();
        const bool isDirection = (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
        if (code == u'\n' || code == u'\r')
            character = turn;
        else if (code == u'\t')
            character = QChar(u'\u21E5');
        else if (code < 0x20 || code == 0x7F)
            character = control;
        else if ((code >= 0x80 && code < 0xA0) || code == 0x2028 || code == 0x2029 || isDirection)
            character = QChar::ReplacementCharacter;
    }
    return line;
}

QString parent(const QString &path)
{
    QStringView text = path;
    while (text.size() > 1 && text.endsWith(u'/'))
        text.chop(1);
    const qsizetype slash = text.lastIndexOf(u'/');
    if (slash < 0)
        return {};
    return slash == 0 ? QStringLiteral("/") : text.first(slash).toString();
}

QString lastComponent(const QString &path)
{
    QStringView text = path;
    while (text.size() > 1 && text.endsWith(u'/'))
        text.chop(1);
    if (text == u"/")
        return text.toString();
    return text.sliced(text.lastIndexOf(u'/') + 1).toString();
}

QString extension(const QString &path)
{
    const QString name = lastComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot <= 0 || name == u".." ? QString() : name.sliced(dot + 1);
}

QString stem(const QString &path)
{
    const QString name = lastComponent(path);
    const QString ending = extension(name);
    return ending.isEmpty() ? name : name.chopped(ending.size() + 1);
}

bool isEntryName(QStringView name)
{
    return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/')
           && !name.contains(QChar(0));
}

QString join(const QString &folder, const QString &name)
{
    const bool needsSlash = !folder.endsWith(u'/');
    // Walks join a path for each entry.
    QString path(folder.size() + (needsSlash ? 1 : 0) + name.size(), Qt::Uninitialized);
    QChar *end = std::copy(folder.begin(), folder.end(), path.data());
    if (needsSlash)
        *end++ = u'/';
    std::copy(name.begin(), name.end(), end);
    return path;
}

QString standardized(const QString &path)
{
    QStringList kept;
    for (const QString &part : path.split(u'/', Qt::SkipEmptyParts)) {
        if (part != u"." && part != u"..")
            kept.append(part);
        else if (part == u".." && !kept.isEmpty())
            kept.removeLast();
    }
    return u'/' + kept.join(u'/');
}

bool isAtOrBelow(const QString &path, const QString &folder)
{
    if (!path.startsWith(folder))
        return false;
    return path.size() == folder.size() || folder.endsWith(u'/') || path[folder.size()] == u'/';
}

std::optional<QString> below(const QString &path, const QString &folder)
{
    const QString start = join(folder, {});
    const QString rest = path.startsWith(start) ? path.sliced(start.size()) : QString();
    if (rest.isEmpty() || standardized(rest) != u'/' + rest)
        return std::nullopt;
    return rest;
}

QString expandTilde(const QString &path, const QString &home)
{
    if (path == u"~")
        return home;
    return path.startsWith(u"~/") ? join(home, path.sliced(2)) : path;
}

QString withTilde(const QString &path, const QString &home)
{
    if (home.isEmpty() || !isAtOrBelow(path, home))
        return path;
    const QString rest = path.sliced(home.size());
    // A home that ends in a slash, as "/" does, has taken that of the rest.
    return rest.isEmpty() || rest.startsWith(u'/') ? u'~' + rest : QStringLiteral("~/") + rest;
}

QByteArray fileUrl(const QString &path)
{
    return "file://" + toBytes(path).toPercentEncoding("/");
}

QString fromFileUrl(const QByteArray &url)
{
    static const QByteArray scheme = "file://";
    if (!url.startsWith(scheme))
        return {};
    const qsizetype slash = url.indexOf('/', scheme.size()); // a host name may stand before the path
    return slash < 0 ? QString() : fromBytes(QByteArray::fromPercentEncoding(url.sliced(slash)));
}

} // namespace paths
