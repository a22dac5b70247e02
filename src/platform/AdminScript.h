#pragma once

#include <QString>

/// The words in which the Mac is asked to move an item to the Trash as an administrator.
namespace adminscript {

/// The source of the script that moves the item at `path` into the Trash of the user whose home folder is `home`,
/// replacing an item of the same name there. Only `path` is escaped, and only for the script: the shell command that
/// the script runs reads it between double quotes.
QString source(const QString &path, const QString &home);

} // namespace adminscript
