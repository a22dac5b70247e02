#pragma once

#include "platform/Recycler.h"

/// The demo's Trash: the desktop's own, but for the applications that only an administrator can move. The stand-in for that
/// one asks nobody: it moves the first of them, is called off for the second and fails for the third.
class DemoRecycler final : public Recycler
{
public:
    /// `trash` outlives it.
    explicit DemoRecycler(Recycler &trash);

    void recycle(const QStringList &paths, Completion completion) override;
    std::optional<AdminFailure> moveToTrashAsAdministrator(const QString &path) override;
    void removeForGood(const QStringList &items, const QString &trash) override;

private:
    Recycler &trash_;
};
