#pragma once

#include <QByteArray>
#include <QString>

/// Pictures of the demo's applications.
namespace demopictures {

/// A set of two sizes as the Mac's applications have it: the first letter of the name on a ground of that colour. Needs the
/// toolkit.
QByteArray set(const QString &name, const QString &tint);

} // namespace demopictures
