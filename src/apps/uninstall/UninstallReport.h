#pragma once

#include "base/Error.h"

#include <QString>

#include <optional>

/// What became of one application and the files that were to go with it.
struct UninstallReport
{
    QString appPath; ///< of the bundle
    bool appWasMoved = false;
    std::optional<Error> appError; ///< why it was not
    int filesRemoved = 0;          ///< associated files
    int filesFailedCount = 0;      ///< those that stayed; one that had vanished is neither
    qint64 freedSize = 0;          ///< bytes, as the scan had measured them

    bool isComplete() const { return appWasMoved && filesFailedCount == 0; }
};
