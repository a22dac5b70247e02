#pragma once

#include "platform/Recycler.h"

/// The Trash of the desktop's own library, and `pkexec` for what takes an administrator. Nothing in the Trash
/// is ever replaced.
class LinuxRecycler final : public Recycler
{
public:
    /// The domain of the errors that are this class's own, and their codes.
    static constexpr QLatin1StringView errorDomain{"Quillmere.Recycler"};
    static constexpr int volumeHasNoTrash = 1;     ///< it is in memory, or the system's own
    static constexpr int trashIsOnOtherVolume = 2; ///< the data folder isn't on the home folder's volume
    static constexpr int trashIsLink = 3;          ///< the desktop would show nothing of what went behind it

    /// The absolute paths of the two programs.
    LinuxRecycler(QString pkexec, QString mv);

    void recycle(const QStringList &paths, Completion completion) override;
    std::optional<AdminFailure> moveToTrashAsAdministrator(const QString &path) override;

private:
    const QString pkexec_;
    const QString mv_;
};
