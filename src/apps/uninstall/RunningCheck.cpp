#include "apps/uninstall/RunningCheck.h"

#include "base/Paths.h"

#include <algorithm>

bool runningcheck::isRunning(const QString &bundle, const QStringList &running)
{
    const QString app = paths::standardized(bundle);
    return std::any_of(running.begin(), running.end(), [&app](const QString &path) {
        if (path.isEmpty())
            return false;
        const QString program = paths::standardized(path);
        return program.startsWith(app) || app.startsWith(program);
    });
}
