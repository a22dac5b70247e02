#include "platform/linux/SystemTexts.h"

#include "base/Paths.h"

#include <QList>

#include <charconv>

namespace {

/// The byte that `length` digits at `at` stand for; none when they are no digits, more than a byte, or NUL,
/// which no name can hold.
std::optional<char> escapedByte(QByteArrayView text, qsizetype at, qsizetype length, int base)
{
    if (text.size() < at + length)
        return std::nullopt;
    const char *first = text.data() + at;
    unsigned value = 0;
    const auto [end, error] = std::from_chars(first, first + length, value, base);
    if (error != std::errc() || end != first + length || value == 0 || value > 0xFF)
        return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(value));
}

/// `text` with each escape, which is `lead` and `length` digits, as its byte. What is no escape stays.
QByteArray unescaped(QByteArrayView text, QByteArrayView lead, qsizetype length, int base)
{
    QByteArray plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        std::optional<char> byte;
        if (text.sliced(i).startsWith(lead))
            byte = escapedByte(text, i + lead.size(), length, base);
        plain += byte.value_or(text[i]);
        i += byte ? lead.size() + length : 1;
    }
    return plain;
}

/// One line, "36 35 254:2 / / rw,noatime master:1 - ext4 /dev/vda2 rw": any number of fields may stand before
/// the "-", and those behind it tell the file system.
std::optional<systemtexts::Mount> rootMountOfLine(const QByteArray &line)
{
    constexpr qsizetype device = 2;
    constexpr qsizetype mountPoint = 4;
    const QList<QByteArray> fields = line.split(' ');
    const qsizetype dash = fields.indexOf("-", mountPoint + 2);
    if (dash < 0 || fields.size() < dash + 3 || fields[mountPoint] != "/")
        return std::nullopt;
    return systemtexts::Mount{unescaped(fields[dash + 2], "\\", 3, 8), fields[device]};
}

} // namespace

namespace systemtexts {

std::optional<Mount> rootMount(QByteArrayView mountInfo)
{
    std::optional<Mount> found;
    for (const QByteArray &line : mountInfo.toByteArray().split('\n')) {
        if (const auto mount = rootMountOfLine(line))
            found = mount;
    }
    return found;
}

QString decodedLabel(const QString &linkName)
{
    return paths::display(paths::fromBytes(unescaped(paths::toBytes(linkName), "\\x", 2, 16)));
}

SystemInfo::Version kernelVersion(QByteArrayView release)
{
    int numbers[3] = {};
    const char *at = release.begin();
    for (int &number : numbers) {
        const auto [end, error] = std::from_chars(at, release.end(), number);
        if (error != std::errc() || number < 0) {
            number = 0;
            break;
        }
        if (end == release.end() || *end != '.')
            break;
        at = end + 1;
    }
    return {numbers[0], numbers[1], numbers[2]};
}

} // namespace systemtexts
