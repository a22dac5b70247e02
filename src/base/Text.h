#pragma once

#include <QByteArrayView>
#include <QStringView>

#include <optional>

/// Small readings of text that more than one place needs.
namespace text {

/// The whole of `digits` as a decimal integer: an optional sign, then digits only. None for anything else,
/// white space, grouping and values beyond 64 bits included.
std::optional<qint64> parseInteger(QByteArrayView digits);

} // namespace text
