#include "common/DateTexts.h"

#include <chrono>
#include <memory>

#include <unicode/smpdtfmt.h>
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
    UErrorCode status = U_ZERO_ERROR;
    const icu::SimpleDateFormat format(u"MMM d, yyyy", icu::Locale::getDefault(), status);
    return formatted(U_SUCCESS(status) ? &format : nullptr, date);
}

} // namespace datetexts
