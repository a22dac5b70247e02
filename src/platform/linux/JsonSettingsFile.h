#pragma once

#include <QSettings>
#include <QString>

/// Settings as one JSON object in a file.
namespace jsonsettings {

/// The format for QSettings, registered at the first call. Whole numbers of 64 bits stay exact.
QSettings::Format format();

/// Moves what lies at `path` aside when it is no settings file: no regular file, unreadable, no JSON object, or
/// larger than 16 MB. The new name is `path` + ".damaged", or ".damaged-2" and so on when that is taken. False
/// when something that is no settings file is still there.
bool moveAsideIfDamaged(const QString &path);

/// Clears the lock that a process left behind when it was killed while it wrote the settings at `path`. QSettings
/// itself may wait half a minute for such a lock; this takes a second at most.
void clearStaleLock(const QString &path);

} // namespace jsonsettings
