#pragma once

#include <QString>

#include <optional>

/// What the name of an entry in the Library says by itself: no disk, and nothing of what is installed.
namespace ghostnames {

/// The form in which names and identifiers are compared: in lower case, whichever way accents were encoded.
QString comparable(const QString &text);

/// True for three components and more, parted by dots.
bool isIdentifier(QStringView text);

/// An identifier without what group containers put in front of it: "group", or the identifier of a team of developers.
/// Once only, and the case stays. What is no identifier stays as it is.
QString normalised(const QString &identifier);

/// True for names of the system's own and of libraries that come inside applications: they mean nothing about an
/// application. So do names of at most four characters, which are part of too much.
bool isExcluded(const QString &entry);

/// The entry without what stands behind an identifier where the state of windows is kept.
QString withoutSavedState(const QString &entry);

/// What the entries of one owner have in common: a comparable identifier or name. A folder that keeps cookies, states of
/// windows or data of a group has that of its application.
QString groupKey(const QString &entry);

/// The identifier that a file of preferences is named after. None for what is no such file, and for identifiers of fewer
/// than three components.
std::optional<QString> preferencesIdentifier(const QString &file);

/// A name for people, made up from a group's key: "My Old Tool" of "com.oldvendor.my-old_tool". The key itself where it
/// is no identifier.
QString inferredName(const QString &key);

} // namespace ghostnames
