#include "common/Formatters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr double logOfStep = 6.931471805599453; // ln 1024
constexpr std::array units = {"B", "KB", "MB", "GB", "TB"};
constexpr qint64 mostBytes = (qint64(1) << 50) - 1; // 1024 TB less one

/// Plain digits with a point, whatever the locale.
QString fixedText(double value, int decimals)
{
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                      std::chars_format::fixed, decimals);
    return QString::fromLatin1(digits.data(), result.ptr - digits.data());
}

bool isAlphanumeric(QChar character)
{
    return character.isLetterOrNumber();
}

/// The number that the leading hexadecimal digits make, behind an optional "0x"; 0 without any.
quint32 scannedHex(const QString &text)
{
    const QByteArray digits = text.toLatin1();
    const char *first = digits.begin() + (digits.startsWith("0x") || digits.startsWith("0X") ? 2 : 0);
    quint32 value = 0;
    std::from_chars(first, digits.end(), value, 16);
    return value;
}

} // namespace

QString formatBytes(qint64 bytes)
{
    if (bytes < 0 || bytes > mostBytes)
        qFatal("formatBytes: %lld has no text", static_cast<long long>(bytes));
    if (bytes == 0)
        return QStringLiteral("0 B");
    const auto count = static_cast<double>(bytes);
    // The logarithm of the largest counts rounds up to the next step; there is no unit there.
    const auto step = std::min(static_cast<size_t>(std::log(count) / logOfStep), units.size() - 1);
    const double value = std::ldexp(count, -10 * static_cast<int>(step));
    return fixedText(value, value < 10 ? 1 : 0) + u' ' + QLatin1StringView(units[step]);
}

qint64 clampedBytes(qint64 bytes)
{
    return std::clamp<qint64>(bytes, 0, mostBytes);
}

QString sizeText(qint64 bytes)
{
    return formatBytes(clampedBytes(bytes));
}

Color colorFromHex(const QString &text)
{
    const auto first = std::find_if(text.begin(), text.end(), isAlphanumeric);
    const auto last = std::find_if(text.rbegin(), std::make_reverse_iterator(first), isAlphanumeric).base();
    const QString digits(first, static_cast<qsizetype>(last - first));
    if (digits.size() != 6 && digits.size() != 8)
        return {};
    const quint32 value = scannedHex(digits);
    const auto component = [value](int shift) { return ((value >> shift) & 0xFF) / 255.0; };
    return {component(16), component(8), component(0), digits.size() == 8 ? component(24) : 1.0};
}

QString colorText(const QString &hex)
{
    const Color color = colorFromHex(hex);
    const auto byte = [](double component) { return static_cast<uint>(std::lround(component * 255)); };
    return QStringLiteral("#%1").arg(byte(color.alpha) << 24 | byte(color.red) << 16 | byte(color.green) << 8
                                         | byte(color.blue),
                                     8, 16, QLatin1Char('0'));
}

QString relativeDayText(std::optional<Date> date, Date now)
{
    if (!date)
        return QStringLiteral("Unknown");
    return elapsedDaysText(dates::wholeDaysBetween(*date, now));
}

QString elapsedDaysText(int days)
{
    if (days == 0)
        return QStringLiteral("Today");
    if (days == 1)
        return QStringLiteral("Yesterday");
    if (days < 7)
        return QStringLiteral("%1 days ago").arg(days);
    if (days < 30)
        return QStringLiteral("%1 weeks ago").arg(days / 7);
    return days < 365 ? QStringLiteral("%1 months ago").arg(days / 30)
                      : QStringLiteral("%1 years ago").arg(days / 365);
}
