#include "screens/GatedDu.h"

#include "base/Paths.h"

#include <cstdio>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
const QString gate = QStringLiteral("du-gate");
const QString nextGate = QStringLiteral("du-gate-next");
} // namespace

GatedDu::GatedDu(const TempHome &home)
    : home_(home)
{
    const QByteArray path = paths::toBytes(home_.file(gate));
    // A plain file ends the read at once, a pipe does when its last writer goes.
    program_ = home_.script(QStringLiteral("gated-du"),
                            "read -r nothing <'" + path + "'\nexec /usr/bin/du \"$@\"\n");
}

GatedDu::~GatedDu()
{
    open();
}

void GatedDu::shut()
{
    const QByteArray next = paths::toBytes(home_.at(nextGate));
    if (pipe_ != -1)
        return;
    if (mkfifo(next.constData(), 0600) == 0)
        pipe_ = ::open(next.constData(), O_RDWR | O_CLOEXEC);
    if (pipe_ == -1 || rename(next.constData(), paths::toBytes(home_.at(gate)).constData()) != 0)
        throw std::runtime_error("the gate of du can't be shut");
}

void GatedDu::open()
{
    if (pipe_ == -1)
        return;
    const QByteArray next = paths::toBytes(home_.file(nextGate));
    rename(next.constData(), paths::toBytes(home_.at(gate)).constData());
    close(pipe_); // those that wait read the end of the pipe
    pipe_ = -1;
}
