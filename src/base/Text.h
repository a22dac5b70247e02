#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <vector>

/// Small readings of text that more than one place needs.
namespace text {

/// The whole of `digits` as a decimal integer: an optional sign, then digits only. None for anything else,
/// white space, grouping and values beyond 64 bits included.
std::optional<qint64> parseInteger(QByteArrayView digits);

/// The characters as a reader sees them: an accent belongs to its letter, a flag is one. Pieces of `text`, which they
/// must not outlive.
std::vector<QStringView> characters(QStringView text);

/// True when a reader who types `part` into a search field would call it part of `text`: whatever the case, by the rules
/// of the current language (a Turkish ı is no I elsewhere), and whichever way accents are encoded. Accents count. An
/// empty `part` is part of any text.
bool containsLocalized(const QString &text, const QString &part);

/// True when `left` stands before `right` in plain order, which is the same in every language: by code points, whichever
/// way accents are encoded. So "Z" stands before "a". Strict, as a sort needs it.
bool precedes(const QString &left, const QString &right);

/// Those of the parts that say something.
QString joined(QStringList parts, QStringView separator);

} // namespace text
