#pragma once

#include "base/Lazy.h"
#include "platform/Applications.h"
#include "platform/Locations.h"

/// Programs that run, by the kernel; and identifiers by the desktop's entries, each of which is called after one and
/// names a program.
class LinuxApplications final : public Applications
{
public:
    /// Entries are looked up in the folders of `locations`, programs in `searchPath` as in $PATH. Tests put a folder of
    /// their own in the place of the kernel's `processes`.
    LinuxApplications(const Lazy<Locations> &locations, QStringList searchPath,
                      QString processes = QStringLiteral("/proc"));

    /// Of an ended update the program's path ends in " (deleted)", as the kernel tells it.
    QStringList runningPaths() const override;
    QStringList knownPaths(const QString &identifier) const override;

private:
    const Lazy<Locations> &locations_;
    const QStringList searchPath_;
    const QString processes_;
};
