#include "screens/DiskGate.h"

#include "base/Files.h"

DiskGate::DiskGate()
{
    files::injectFaults([this](files::Operation operation, const QString &path) {
        if (operation == files::Operation::list || operation == files::Operation::read)
            pass(path);
        return 0;
    });
}

DiskGate::~DiskGate()
{
    files::injectFaults({});
}

void DiskGate::shut(const QString &path)
{
    const std::lock_guard lock(mutex_);
    path_ = path;
}

void DiskGate::open()
{
    const std::lock_guard lock(mutex_);
    path_.clear();
    opened_.notify_all();
}

bool DiskGate::isHolding()
{
    const std::lock_guard lock(mutex_);
    return waiting_ > 0;
}

void DiskGate::pass(const QString &path)
{
    std::unique_lock lock(mutex_);
    if (path != path_)
        return;
    ++waiting_;
    opened_.wait(lock, [this, &path] { return path != path_; });
    --waiting_;
}
