#include "base/Text.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <string_view>

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

namespace text {
namespace {

/// In plain ASCII each unit is a character, but for a carriage return, which may be one with a line feed.
bool isPlain(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit < u'\x80' && unit != u'\r'; });
}

std::vector<QStringView> units(QStringView text)
{
    std::vector<QStringView> all;
    all.reserve(static_cast<size_t>(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i)
        all.push_back(text.sliced(i, 1));
    return all;
}

/// Equal for texts that differ in case or in the encoding of accents alone. Accents are taken apart first, so that a
/// letter is folded the same way with and without its accent as part of it.
QString folded(const QString &text)
{
    const std::string_view language = icu::Locale::getDefault().getLanguage();
    const bool hasDotlessI = language == "tr" || language == "az";
    const QString apart = text.normalized(QString::NormalizationForm_D);
    icu::UnicodeString folding(apart.utf16(), static_cast<int32_t>(apart.size()));
    folding.foldCase(hasDotlessI ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT);
    return QString(reinterpret_cast<const QChar *>(folding.getBuffer()), folding.length())
        .normalized(QString::NormalizationForm_C);
}

} // namespace

std::optional<qint64> parseInteger(QByteArrayView digits)
{
    const char *first = digits.begin();
    if (first != digits.end() && *first == '+') {
        ++first;
        if (first != digits.end() && *first == '-')
            return std::nullopt;
    }
    qint64 value = 0;
    const auto [end, error] = std::from_chars(first, digits.end(), value);
    if (error != std::errc() || end != digits.end())
        return std::nullopt;
    return value;
}

std::vector<QStringView> characters(QStringView text)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> breaks(
        isPlain(text) ? nullptr
                      : icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (!breaks || U_FAILURE(status))
        return units(text);
    const icu::UnicodeString read(false, text.utf16(), static_cast<int32_t>(text.size())); // no copy
    breaks->setText(read);
    std::vector<QStringView> all;
    for (int32_t start = 0, end = breaks->next(); end != icu::BreakIterator::DONE; end = breaks->next()) {
        all.push_back(text.sliced(start, end - start));
        start = end;
    }
    return all;
}

bool containsLocalized(const QString &text, const QString &part)
{
    return folded(text).contains(folded(part));
}

bool precedes(const QString &left, const QString &right)
{
    const QString first = left.normalized(QString::NormalizationForm_C);
    const QString second = right.normalized(QString::NormalizationForm_C);
    return u_strCompare(reinterpret_cast<const UChar *>(first.utf16()), static_cast<int32_t>(first.size()),
                        reinterpret_cast<const UChar *>(second.utf16()), static_cast<int32_t>(second.size()),
                        true)
           < 0;
}

QString joined(QStringList parts, QStringView separator)
{
    parts.removeAll(QString());
    return parts.join(separator);
}

} // namespace text
