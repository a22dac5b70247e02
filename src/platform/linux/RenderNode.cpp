#include "platform/linux/RenderNode.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <unistd.h>

namespace rendernode {

bool isThere(const QString &folder)
{
    files::DirectoryReader entries(folder);
    while (entries.next()) {
        if (!entries.name().startsWith("renderD"))
            continue;
        const QString path = paths::join(folder, paths::fromBytes(entries.name().toByteArray()));
        if (access(paths::toBytes(path).constData(), R_OK | W_OK) == 0)
            return true;
    }
    return false;
}

} // namespace rendernode
