#pragma once

#include <QString>

/// The warnings that Qt and our QML print while the tests run. Each is recorded and then printed as ever.
namespace warnings {

/// Records from here on. Called again, it takes its place before a handler that was installed since.
void watch();

/// Those recorded since the last call, a line each; empty when all is well.
QString take();

} // namespace warnings
