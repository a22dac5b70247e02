#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

/// Settings as one JSON object in a file. Whole numbers of 64 bits stay exact, and so does every text, bytes of paths
/// that are not UTF-8 included. A link at the path is followed.
namespace jsonsettings {

/// The settings in the file; empty ones where there is none. What lies there and is no settings file (no regular file,
/// unreadable, no JSON object, or larger than 16 MB) is moved aside first, to `path` + ".damaged", or ".damaged-2" and so
/// on when that is taken. None when it is still there.
std::optional<QVariantMap> read(const QString &path);

/// Replaces the file, and makes the folders above it that are missing. False when it can't.
bool write(const QString &path, const QVariantMap &values);

} // namespace jsonsettings
