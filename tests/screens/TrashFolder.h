#pragma once

#include "support/Fakes.h"
#include "support/TempHome.h"

#include <QSet>
#include <QString>

#include <functional>

/// A Trash that takes what it is given: it moves it into a folder of the test's own. What is
/// removed from it for good is gone. One thread at a time.
class TrashFolder
{
public:
    /// Answers for `recycler`. Both outlive it.
    TrashFolder(const TempHome &home, FakeRecycler &recycler);
    TrashFolder(const TrashFolder &) = delete;
    TrashFolder &operator=(const TrashFolder &) = delete;

    /// Leaves the entry where it is, and tells an error.
    void refuse(const QString &path) { refused_.insert(path); }

    /// Keeps the next move from ending until `doing` has run, in a turn of the main loop of its own. For moves that are begun on the main thread.
    void duringNext(std::function<void()> doing) { doing_ = std::move(doing); }

    /// Puts what it takes into that folder itself, as the Trash that a scan finds.
    void putInto(const QString &folder) { folder_ = folder; }

    /// Takes everything at once again, into a folder of its own each.
    void reset();

private:
    void take(const QString &path, const Recycler::Completion &done);

    const TempHome &home_;
    QString place(const QString &path);

    QSet<QString> refused_;
    QString folder_; // empty: a folder for each item
    std::function<void()> doing_;
    int count_ = 0;
};
