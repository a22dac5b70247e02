#pragma once

#include "apps/catalogue/RealInstalledApp.h"

#include <QString>
#include <QUuid>

#include <optional>

/// What a removal came to, as it is told to the user.
struct UninstallResult
{
    QUuid id;        ///< fresh for each result
    QString appName; ///< or a summary, of a run over several
    int removedCount = 0;
    qint64 freedSize = 0; ///< bytes
    bool success = false;
    std::optional<QString> error;                 ///< why it failed
    std::optional<QString> failedPath;            ///< a bundle to be shown in the file viewer
    std::optional<RealInstalledApp> retryableApp; ///< may be tried again as an administrator
};
