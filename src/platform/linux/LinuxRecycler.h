#pragma once

#include "base/Log.h"
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
    static constexpr int strandedInTrash = 4;      ///< it lies there without a note and can't be moved back

    /// The absolute paths of the two programs, and where an item that is stranded in the Trash is told of. The
    /// log outlives every run.
    LinuxRecycler(QString pkexec, QString mv, LogSink &log);

    void recycle(const QStringList &paths, Completion completion) override;
    std::optional<AdminFailure> moveToTrashAsAdministrator(const QString &path) override;
    void removeForGood(const QStringList &items, const QString &trash) override;

private:
    const QString pkexec_;
    const QString mv_;
    const Logger log_;
};
