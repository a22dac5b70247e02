#include "shell/common/DateTexts.h"

#include <chrono>
#include <memory>

#include <unicode/datefmt.h>
#include <unicode/unistr.h>

namespace datetexts {

QString shortDateTime(Date date)
{
    using icu::DateFormat;
    const std::unique_ptr<DateFormat> format(DateFormat::createDateTimeInstance(
        DateFormat::kShort, DateFormat::kShort, icu::Locale::getDefault()));
    if (!format)
        return {};
    icu::UnicodeString text;
    format->format(
        static_cast<UDate>(std::chrono::floor<std::chrono::milliseconds>(date.time_since_epoch()).count()),
        text);
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

} // namespace datetexts
