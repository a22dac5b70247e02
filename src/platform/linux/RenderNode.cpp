#include "platform/linux/RenderNode.h"

#include "base/Paths.h"

#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace rendernode {

bool isThere(const QString &folder)
{
    std::error_code ignored; // no folder, no node
    for (const auto &entry :
         std::filesystem::directory_iterator(paths::toBytes(folder).toStdString(), ignored)) {
        const bool isNode = entry.path().filename().string().starts_with("renderD");
        if (isNode && access(entry.path().c_str(), R_OK | W_OK) == 0)
            return true;
    }
    return false;
}

} // namespace rendernode
