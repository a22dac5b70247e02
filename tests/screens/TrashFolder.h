#pragma once

#include "support/Fakes.h"
#include "support/TempHome.h"

#include <QSet>
#include <QString>

#include <functional>

/// A Trash that takes what it is given: it moves it into a folder of the test's own. Main thread.
class TrashFolder
{
public:
    /// Answers for `recycler`. Both outlive it.
    TrashFolder(const TempHome &home, FakeRecycler &recycler);
    TrashFolder(const TrashFolder &) = delete;
    TrashFolder &operator=(const TrashFolder &) = delete;

    /// Leaves the entry where it is, and tells an error.
    void refuse(const QString &path) { refused_.insert(path); }

    /// Keeps the next move from ending until `doing` has run, in a turn of the main loop of its own.
    void duringNext(std::function<void()> doing) { doing_ = std::move(doing); }

    /// Takes everything at once again.
    void reset();

private:
    void take(const QString &path, const Recycler::Completion &done);

    const TempHome &home_;
    QSet<QString> refused_;
    std::function<void()> doing_;
    int count_ = 0;
};
