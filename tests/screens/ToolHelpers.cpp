#include "screens/ToolHelpers.h"

namespace toolhelpers {

std::vector<Helper> &all()
{
    static std::vector<Helper> helpers;
    return helpers;
}

} // namespace toolhelpers
