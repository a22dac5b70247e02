#include "common/DateTexts.h"

#include <chrono>
#include <memory>

#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

namespace datetexts {
namespace {

/// The date in that format; empty where the system has none to give.
QString formatted(const icu::DateFormat *format, Date date)
{
    if (!format)
        return {};
    const auto time = std::chrono::floor<std::chrono::milliseconds>(date.time_since_epoch());
    icu::UnicodeString text;
    format->format(static_cast<UDate>(time.count()), text);
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

using Format = std::unique_ptr<icu::SimpleDateFormat>;

/// A format costs a thousand times what its use does, and a list asks for a date with each row that comes into view: it
/// is kept as long as the system's language and time zone stay. One for each thread, since it is no format for several.
const Format &dayFormat()
{
    thread_local Format format;
    thread_local icu::Locale locale;
    thread_local std::unique_ptr<icu::TimeZone> zone;
    std::unique_ptr<icu::TimeZone> zoneNow(icu::TimeZone::createDefault());
    if (format && locale == icu::Locale::getDefault() && *zone == *zoneNow)
        return format;
    UErrorCode status = U_ZERO_ERROR;
    locale = icu::Locale::getDefault();
    zone = std::move(zoneNow);
    format = std::make_unique<icu::SimpleDateFormat>(u"MMM d, yyyy", locale, status);
    if (U_FAILURE(status))
        format.reset();
    return format;
}

} // namespace

QString shortDateTime(Date date)
{
    using icu::DateFormat;
    const std::unique_ptr<DateFormat> format(DateFormat::createDateTimeInstance(
        DateFormat::kShort, DateFormat::kShort, icu::Locale::getDefault()));
    return formatted(format.get(), date);
}

QString mediumDay(Date date)
{
    if (date == dates::distantPast)
        return QStringLiteral("—");
    return formatted(dayFormat().get(), date);
}

} // namespace datetexts
