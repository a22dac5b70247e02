#include "base/Threads.h"

#include "base/Error.h"

#include <system_error>
#include <thread>
#include <utility>

namespace threads {

void runDetached(std::function<void()> block)
{
    try {
        std::thread(std::move(block)).detach();
    } catch (const std::system_error &error) {
        throw errors::fromErrno(error.code().value());
    }
}

} // namespace threads
