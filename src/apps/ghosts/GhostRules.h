#pragma once

#include "platform/Locations.h"

#include <QString>

class InstalledWords;
class KnownIdentifiers;

/// Whether an entry of the Library still has an owner. An entry that is wrongly taken for a ghost's breaks an
/// application, one that is wrongly spared takes room and nothing more: so every rule leans towards the owner who is
/// still there.
namespace ghostrules {

/// True when something installed holds the entry, read as an identifier: the application itself, one that the system
/// knows, a helper or its owner, or anything else of a vendor of whom something is installed.
bool isHeld(const QString &entry, const InstalledWords &installed, KnownIdentifiers &known);

/// True when the entry, read as a name, resembles a name or identifier of something installed, whole or by a piece of it.
bool isNameTaken(const QString &entry, const InstalledWords &installed);

/// True when the entry of a folder whose entries are named in that style has no owner any more. What is no identifier
/// where there are identifiers is none of an application's.
bool isLeftBehind(const QString &entry, Locations::GhostFolder::Style style, const InstalledWords &installed,
                  KnownIdentifiers &known);

/// The same of a file in the folder of preferences.
bool arePreferencesLeftBehind(const QString &file, const InstalledWords &installed, KnownIdentifiers &known);

/// A warning about a group that has passed all tests and yet resembles something installed.
bool looksInstalled(const QString &key, const QString &inferredName, const InstalledWords &installed);

} // namespace ghostrules
