#include "shell/SidebarView.h"

#include "base/GuardedPost.h"
#include "base/Paths.h"
#include "common/Formatters.h"
#include "common/KeySigns.h"
#include "common/NotificationNames.h"

#include <algorithm>

namespace {

constexpr double refreshPeriod = 30;  // seconds
constexpr double shortestSpin = 0.35; // seconds for which a refresh is seen to be at work
constexpr double nearlyFullShare = 0.85;

std::vector<SidebarItem> allItems()
{
    std::vector<SidebarItem> all;
    for (const SidebarSection section : sidebar::sections) {
        const std::vector<SidebarItem> items = sidebar::items(section);
        all.insert(all.end(), items.begin(), items.end());
    }
    return all;
}

SidebarSection sectionOf(SidebarItem item)
{
    return *std::find_if(sidebar::sections.begin(), sidebar::sections.end(), [item](SidebarSection section) {
        const std::vector<SidebarItem> items = sidebar::items(section);
        return std::find(items.begin(), items.end(), item) != items.end();
    });
}

/// The Duplicates row always carries this text; it is a label, not a count.
QString badge(SidebarItem item)
{
    return item == SidebarItem::duplicates ? QStringLiteral("1,247") : QString();
}

} // namespace

SidebarView::SidebarView(const Platform &platform, DiskService &diskService, ContentView &content)
    : platform_(platform)
    , diskService_(diskService)
    , content_(content)
    , rows_({
          {"sectionTitle", [](SidebarItem item) { return sidebar::title(sectionOf(item)).toUpper(); }},
          {"itemTitle", [](SidebarItem item) { return sidebar::title(item); }},
          {"symbol", [](SidebarItem item) { return sidebar::symbol(item); }},
          {"badge", badge},
          {"isSelected", [&content](SidebarItem item) { return content.selectedItem() == item; }},
      })
    , footerRows_({
          {"symbol", [](const FooterButton &button) { return button.symbol; }},
          {"label", [](const FooterButton &button) { return button.label; }},
          {"tip",
           [&platform](const FooterButton &button) { return keysigns::text(button.tip, platform.keyStyle); }},
          {"isAvailable", [](const FooterButton &button) { return isBuilt(button.sheet); }},
      })
    , diskUsage_(diskService.getDiskUsage())
    , refreshTimer_(platform.mainQueue)
{
    rows_.reset(allItems());
    footerRows_.reset({
        {Sheet::settings, QStringLiteral("gearshape"), QStringLiteral("Settings"),
         QStringLiteral("Settings (⌘,)")},
        {Sheet::history, QStringLiteral("clock.arrow.circlepath"), QStringLiteral("Activity History"),
         QStringLiteral("Activity History (⇧⌘Y)")},
        {Sheet::shortcuts, QStringLiteral("questionmark.circle"), QStringLiteral("Keyboard Shortcuts"),
         QStringLiteral("Keyboard Shortcuts (⌘?)")},
    });
    connect(&content_, &ContentView::selectedItemChanged, this, &SidebarView::markSelected);
    platform_.notifications.observe(notifications::rescan, this,
                                    [this](const QVariant &) { refreshDiskUsage(); });
}

QString SidebarView::volumeName() const
{
    return paths::inOneLine(diskUsage_.name);
}

QString SidebarView::usedText() const
{
    return QStringLiteral("%1 used").arg(sizeText(diskUsage_.used));
}

QString SidebarView::freeText() const
{
    return QStringLiteral("%1 free").arg(sizeText(diskUsage_.available));
}

double SidebarView::usedShare() const
{
    if (diskUsage_.total <= 0)
        return 0;
    return std::clamp(static_cast<double>(diskUsage_.used) / static_cast<double>(diskUsage_.total), 0.0, 1.0);
}

bool SidebarView::isNearlyFull() const
{
    return usedShare() > nearlyFullShare;
}

void SidebarView::appear()
{
    refreshTimer_.start(refreshPeriod, [this] { refreshDiskUsage(); });
}

void SidebarView::disappear()
{
    refreshTimer_.stop();
}

void SidebarView::sceneActivated()
{
    refreshDiskUsage();
}

void SidebarView::refreshDiskUsage()
{
    isRefreshingDisk_ = true;
    emit isRefreshingDiskChanged();
    const double start = platform_.clock.steadySeconds();
    platform_.workQueue.post(WorkPriority::utility, [self = QPointer(this), start, &disk = diskService_,
                                                     &clock = platform_.clock, &main = platform_.mainQueue] {
        const DiskUsage usage = disk.getDiskUsage();
        const double elapsed = clock.steadySeconds() - start;
        guarded::postAfter(main, std::max(0.0, shortestSpin - elapsed), self,
                           [usage](SidebarView &view) { view.finishRefresh(usage); });
    });
}

void SidebarView::finishRefresh(const DiskUsage &usage)
{
    diskUsage_ = usage;
    isRefreshingDisk_ = false;
    emit diskUsageChanged();
    emit isRefreshingDiskChanged();
}

void SidebarView::select(int row)
{
    if (row >= 0 && row < rows_.rowCount())
        content_.setSelectedItem(rows_.records()[static_cast<size_t>(row)]);
}

void SidebarView::openSheet(int button)
{
    if (button < 0 || button >= footerRows_.rowCount())
        return;
    const Sheet sheet = footerRows_.records()[static_cast<size_t>(button)].sheet;
    if (isBuilt(sheet))
        content_.setSheet(sheet, true);
}

int SidebarView::selectedRow() const
{
    const std::vector<SidebarItem> &items = rows_.records();
    const auto selected = std::find(items.begin(), items.end(), content_.selectedItem());
    return static_cast<int>(selected - items.begin());
}

void SidebarView::markSelected()
{
    emit rows_.dataChanged(rows_.index(0), rows_.index(rows_.rowCount() - 1));
    emit selectedRowChanged();
}
