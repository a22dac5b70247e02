#include "apps/screen/SelectionTexts.h"

#include "base/Sums.h"
#include "common/Formatters.h"

namespace selectiontexts {

SelectedApps selected(const std::vector<RealInstalledApp> &apps)
{
    SelectedApps selected;
    for (const RealInstalledApp &app : apps) {
        if (!app.selected)
            continue;
        ++selected.count;
        selected.total = sums::saturated(selected.total, app.totalSize());
    }
    return selected;
}

QString bar(const SelectedApps &apps)
{
    return QStringLiteral("%1 apps selected").arg(apps.count);
}

QString button(const SelectedApps &apps)
{
    return QStringLiteral("Uninstall %1 apps (%2)").arg(QString::number(apps.count), sizeText(apps.total));
}

QString title(const SelectedApps &apps)
{
    return QStringLiteral("Uninstall %1 Apps?").arg(apps.count);
}

QString question(const SelectedApps &apps)
{
    return QStringLiteral(
               "This will move %1 apps and their associated files to Trash, freeing approximately %2.")
        .arg(QString::number(apps.count), sizeText(apps.total));
}

QString bar(const ghostlist::Pending &ghosts)
{
    return QStringLiteral("%1 selected (%2)").arg(QString::number(ghosts.count), sizeText(ghosts.size));
}

QString button(const ghostlist::Pending &ghosts)
{
    return QStringLiteral("Remove %1 (%2)").arg(QString::number(ghosts.count), sizeText(ghosts.size));
}

QString title(const ghostlist::Pending &ghosts)
{
    return (ghosts.count == 1 ? QStringLiteral("Move %1 ghost group to Trash?")
                              : QStringLiteral("Move %1 ghost groups to Trash?"))
        .arg(ghosts.count);
}

QString question(const ghostlist::Pending &ghosts)
{
    const QString warning = ghosts.looksInstalled == 0
                                ? QString()
                                : QStringLiteral("\n\n⚠️ %1 of these are tagged \"LOOKS INSTALLED\" and "
                                                 "may belong to apps you still use. "
                                                 "Cancel and review them first if you're unsure.")
                                      .arg(ghosts.looksInstalled);
    return QStringLiteral(
               "This will free roughly %1. Items go to Trash with Put Back, so anything you remove by "
               "mistake can be restored.")
               .arg(sizeText(ghosts.size))
           + warning;
}

} // namespace selectiontexts
