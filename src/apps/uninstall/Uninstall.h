#pragma once

#include "activity/HistoryService.h"
#include "apps/catalogue/RealInstalledApp.h"
#include "apps/uninstall/UninstallReport.h"
#include "platform/Platform.h"

#include <functional>
#include <vector>

class FileSystemService;

/// How an application goes. Everything goes to the Trash, and nothing but what `removalplaces` knows.
namespace appuninstall {

/// What the removals work with.
struct Tools
{
    const Platform &platform;
    const FileSystemService &fileSystem;
    /// The activity log, which is made when there is first something to record.
    std::function<HistoryService &()> history;
};

/// Moves the bundle to the Trash, and then those of `files` that are selected, also where the bundle had to stay: what is
/// left of a running application is told by its own refusal. Writes a line to the diagnostic log and a record to the
/// activity log. Blocks; any thread. On the main one the event loop runs meanwhile.
UninstallReport run(const RealInstalledApp &app, const std::vector<AssociatedFile> &files,
                    const Tools &tools);

/// Moves a bundle to the Trash with an administrator's rights, for which the system asks; never on the main thread. Nothing
/// there is a success. Throws Error; its code is FileSystemService::adminCancelled where the user called it off.
void runAsAdministrator(const QString &bundle, const Tools &tools);

} // namespace appuninstall
