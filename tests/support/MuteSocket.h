#pragma once

#include <QString>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// Takes connections into its queue, as the kernel does for a process that is held, and says nothing.
class MuteSocket
{
public:
    explicit MuteSocket(const QString &path)
        : descriptor_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        strncpy(address.sun_path, path.toUtf8().constData(), sizeof address.sun_path - 1);
        isListening_ = bind(descriptor_, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0
                       && listen(descriptor_, 5) == 0;
    }
    ~MuteSocket() { close(descriptor_); }
    MuteSocket(const MuteSocket &) = delete;
    MuteSocket &operator=(const MuteSocket &) = delete;

    bool isListening() const { return isListening_; }
    int descriptor() const { return descriptor_; }

    /// Who waits for a connection waits no more.
    void endListening() { shutdown(descriptor_, SHUT_RDWR); }

private:
    int descriptor_;
    bool isListening_ = false;
};
