#pragma once

#include <QString>

/// Applications, and what live ones and gone ones have left in a library, of each kind that the program tells apart.
namespace demoapplications {

/// Makes them in an applications folder and a home. Throws std::system_error when the disk does not let it.
void make(const QString &applications, const QString &home);

} // namespace demoapplications
