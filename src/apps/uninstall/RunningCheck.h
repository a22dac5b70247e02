#pragma once

#include <QString>
#include <QStringList>

namespace runningcheck {

/// True when one of these paths of running programs belongs to the bundle, or the bundle to it: when either begins with the
/// other. So a program inside a bundle counts as the application running, and in doubt so does a neighbour whose name goes
/// on from the bundle's.
bool isRunning(const QString &bundle, const QStringList &running);

} // namespace runningcheck
