#pragma once

#include <QString>

/// Applications, and what live ones and gone ones have left in a library, of each kind that the program tells apart.
namespace demoapplications {

/// The bundles' names of those that only an administrator can move.
inline constexpr QLatin1StringView guarded{"Firewall Warden.app"};
inline constexpr QLatin1StringView guardedToo{"Clock Guard.app"};
inline constexpr QLatin1StringView immovable{"Sealed Vault.app"};

/// Makes them in an applications folder and a home. Needs the toolkit for their pictures. Throws std::system_error when the
/// disk does not let it.
void make(const QString &applications, const QString &home);

} // namespace demoapplications
