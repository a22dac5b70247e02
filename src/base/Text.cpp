#include "base/Text.h"

#include <charconv>

namespace text {

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

} // namespace text
