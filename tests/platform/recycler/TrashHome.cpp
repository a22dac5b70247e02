#include "TrashHome.h"

#include "base/Paths.h"

using namespace Qt::StringLiterals;

TrashHome::TrashHome()
{
    qputenv("HOME", paths::toBytes(temp_.folder(u"home"_s)));
    qputenv("XDG_RUNTIME_DIR", paths::toBytes(temp_.folder(u"run"_s)));
    temp_.setMode(u"run"_s, 0700);
    for (const char *name :
         {"XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "DBUS_SESSION_BUS_ADDRESS"})
        qunsetenv(name);
    qputenv("GIO_USE_VFS", "local"); // no services of a session are asked
    qputenv("GVFS_DISABLE_FUSE", "1");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("PATH", qgetenv("PATH") + ":/usr/sbin:/sbin"); // where the tools for volumes are
}

QString TrashHome::path()
{
    return paths::fromBytes(qgetenv("HOME"));
}

QString TrashHome::trash()
{
    return path() + u"/.local/share/Trash"_s;
}
