#include "base/Paths.h"
#include "platform/ChildPrograms.h"
#include "platform/linux/LinuxRecycler.h"
#include "platform/SystemTrash.h"

namespace systemtrash {

std::unique_ptr<Recycler> ofHome(const QString &home, LogSink &log)
{
    qputenv("HOME", paths::toBytes(home));
    qunsetenv("XDG_DATA_HOME"); // it would name another home's Trash
    const ChildPrograms programs;
    return std::make_unique<LinuxRecycler>(programs.pkexec, programs.mv, log);
}

} // namespace systemtrash
