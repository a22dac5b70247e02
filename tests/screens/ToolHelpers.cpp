#include "screens/ToolHelpers.h"

namespace toolhelpers {

std::vector<Make> &all()
{
    static std::vector<Make> helpers;
    return helpers;
}

} // namespace toolhelpers
