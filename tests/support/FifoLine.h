#pragma once

#include "base/Paths.h"

#include <QByteArray>
#include <QString>

#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

/// A named pipe on which a program that a test has started tells something while it runs.
class FifoLine
{
public:
    explicit FifoLine(const QString &path)
        : path_(path)
    {
        const QByteArray name = paths::toBytes(path);
        // Open at both ends, so that neither side waits for the other to come.
        if (mkfifo(name.constData(), 0600) == 0)
            descriptor_ = open(name.constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
        if (descriptor_ == -1)
            throw std::runtime_error("no pipe");
    }
    ~FifoLine() { close(descriptor_); }
    FifoLine(const FifoLine &) = delete;
    FifoLine &operator=(const FifoLine &) = delete;

    const QString &path() const { return path_; }

    /// Waits for a line and gives it without its end. Empty when half a minute brings none.
    QByteArray read() const
    {
        QByteArray line;
        pollfd readable = {descriptor_, POLLIN, 0};
        char character = 0;
        while (poll(&readable, 1, 30000) == 1 && ::read(descriptor_, &character, 1) == 1) {
            if (character == '\n')
                return line;
            line += character;
        }
        return {};
    }

private:
    QString path_;
    int descriptor_ = -1;
};
