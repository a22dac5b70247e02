#include "base/Error.h"

#include <system_error>

namespace errors {

Error fromErrno(int code)
{
    return {systemDomain, code, QString::fromStdString(std::generic_category().message(code))};
}

} // namespace errors
