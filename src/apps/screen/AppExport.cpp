#include "apps/screen/AppExport.h"

#include "apps/AppService.h"
#include "apps/screen/AppCsv.h"
#include "base/AtomicWrite.h"
#include "base/Error.h"
#include "platform/Workspace.h"

#include <QPointer>

namespace {

/// The lists are read once the place is chosen. The screen may have been left by then.
template<typename Text>
void save(const Platform &platform, AppService &service, const QString &title, const QString &name, Text text)
{
    Workspace::SaveRequest request;
    request.message = title;
    request.suggestedName = name;
    request.fileType = Workspace::FileType::commaSeparatedText;
    platform.workspace.chooseSavePath(request, [self = QPointer(&service), &workspace = platform.workspace,
                                                text](const std::optional<QString> &path) {
        if (!path || !self)
            return;
        try {
            files::writeAtomically(*path, text(*self));
        } catch (const Error &) {
            return;
        }
        workspace.reveal(*path);
    });
}

} // namespace

void appexport::saveInstalled(const Platform &platform, AppService &service)
{
    save(platform, service, QStringLiteral("Export Installed Apps"), QStringLiteral("installed_apps.csv"),
         [&clock = platform.clock](const AppService &apps) {
             return appcsv::ofInstalled(apps.apps(), clock.now());
         });
}

void appexport::saveGhosts(const Platform &platform, AppService &service)
{
    save(platform, service, QStringLiteral("Export Ghost Files"), QStringLiteral("ghost_files.csv"),
         [](const AppService &apps) { return appcsv::ofGhosts(apps.ghosts()); });
}
