#include "filesystem/WalkBounds.h"

#include "base/Files.h"
#include "base/Paths.h"

WalkBounds::WalkBounds(const QString &root)
    : root_(files::realPath(root))
{
}

bool WalkBounds::mayEnter(const QString &link) const
{
    const auto target = files::realPath(link);
    const auto folder = files::realPath(paths::parent(link));
    return root_ && target && folder && paths::isAtOrBelow(*target, *root_)
           && !paths::isAtOrBelow(*folder, *target) && files::isDirectory(*target);
}
