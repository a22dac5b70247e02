#include "duplicates/screen/DuplicateFinderView.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "base/Sums.h"
#include "common/ExtensionTable.h"
#include "common/Formatters.h"
#include "common/NotificationNames.h"
#include "filesystem/FileSystemService.h"

#include <QPointer>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

const QString allTypes = QStringLiteral("all");
constexpr double progressPeriod = 0.05; // seconds between two pictures of a scan's progress

const ExtensionTable &filterTable()
{
    static const ExtensionTable table = {
        {"jpg jpeg png gif heic webp svg", "images"},
        {"pdf doc docx txt md rtf xls xlsx ppt pptx", "documents"},
        {"zip tar gz rar dmg 7z", "archives"},
        {"mp3 wav flac aac mp4 mov avi mkv", "media"},
    };
    return table;
}

} // namespace

DuplicateFinderView::DuplicateFinderView(const Platform &platform, DuplicateService &service,
                                         FileSystemService &fileSystem, FDAService &access)
    : platform_(platform)
    , service_(service)
    , fileSystem_(fileSystem)
    , filter_(allTypes)
    , banner_(access, DuplicateService::accessContext)
    , scope_(platform, service)
    , filterRows_({
          {"label", [](const QString &filter) { return filter; }},
          {"countText", [](const QString &) { return QString(); }},
          {"isSelected", [this](const QString &filter) { return filter == filter_; }},
      })
    , rows_(service.groups(), platform.home)
{
    filterRows_.reset({filters().begin(), filters().end()});
    observeService();
    platform_.notifications.observe(notifications::rescan, this, [this](const QVariant &) { scan(); });
    showGroups();
}

void DuplicateFinderView::observeService()
{
    connect(&service_, &DuplicateService::groupsChanged, this, [this] {
        setShowDeleteConfirm(false); // it has asked about files that are no longer what is set to go
        showGroups();
    });
    connect(&service_, &DuplicateService::groupsShrunk, this, [this] {
        filteredGroups_ = groupsPassingFilter();
        rows_.shrink(filteredGroups_);
        takeFigures();
    });
    connect(&service_, &DuplicateService::fileChanged, this, [this](size_t group, size_t file) {
        rows_.refreshFile(group, file);
        takeFigures();
    });
    connect(&service_, &DuplicateService::groupChanged, this, [this](size_t group) {
        rows_.refreshGroup(group);
        takeFigures();
    });
    connect(&service_, &DuplicateService::keepChanged, this, [this] {
        rows_.refreshAll();
        takeFigures();
    });
    connect(&service_, &DuplicateService::isScanningChanged, this, [this] {
        emit stateChanged();
        emit progressChanged();
    });
    connect(&service_, &DuplicateService::progressChanged, this, &DuplicateFinderView::announceProgress);
    connect(&service_, &DuplicateService::currentPathChanged, this, &DuplicateFinderView::announceProgress);
    connect(&service_, &DuplicateService::scopeChanged, this, &DuplicateFinderView::stateChanged);
    connect(&service_, &DuplicateService::deletingChanged, this, [this] {
        emit stateChanged();
        emit deletingChanged();
    });
}

/// A scan may tell of thousands of folders a second; nobody reads more than a few, and each would be laid out.
void DuplicateFinderView::announceProgress()
{
    if (std::exchange(isProgressDue_, true))
        return;
    platform_.mainQueue.postAfter(progressPeriod, [self = QPointer(this)] {
        if (!self)
            return;
        self->isProgressDue_ = false;
        emit self->progressChanged();
    });
}

const QStringList &DuplicateFinderView::filters()
{
    static const QStringList names = {allTypes, QStringLiteral("images"), QStringLiteral("documents"),
                                      QStringLiteral("archives"), QStringLiteral("media")};
    return names;
}

const std::map<QString, QStringList> &DuplicateFinderView::extMap()
{
    return filterTable().extensionsByValue();
}

std::vector<size_t> DuplicateFinderView::groupsPassingFilter() const
{
    const auto passes = [&](const DuplicateFileGroup &group) {
        return filter_ == allTypes
               || (!group.files.empty()
                   && filterTable().value(paths::extension(group.files.front().path).toLower()) == filter_);
    };
    std::vector<size_t> passing;
    for (size_t group = 0; group < service_.groups().size(); ++group) {
        if (passes(service_.groups()[group]))
            passing.push_back(group);
    }
    return passing;
}

void DuplicateFinderView::showGroups()
{
    emit rowsWillChange();
    filteredGroups_ = groupsPassingFilter();
    rows_.show(filteredGroups_);
    takeFigures();
}

void DuplicateFinderView::takeFigures()
{
    figures_ = {};
    for (const size_t index : filteredGroups_) {
        const DuplicateFileGroup &group = service_.groups()[index];
        const auto going = std::count_if(group.files.begin(), group.files.end(),
                                         [](const DuplicateFileEntry &file) { return !file.keep; });
        figures_.groups += 1;
        figures_.files += static_cast<qint64>(group.files.size());
        figures_.filesToDelete += going;
        figures_.wasted = sums::saturated(figures_.wasted, group.wastedBytes());
        figures_.bytesToDelete =
            sums::saturated(figures_.bytesToDelete, sums::saturatedProduct(going, group.size));
    }
    emit figuresChanged();
    emit stateChanged();
}

QString DuplicateFinderView::settingsText() const
{
    return showSettings_ ? QStringLiteral("Hide Settings") : QStringLiteral("Settings");
}

bool DuplicateFinderView::canScan() const
{
    return !isScanning() && !isDeleting() && !service_.scanPaths().isEmpty();
}

bool DuplicateFinderView::canChoose() const
{
    return !isScanning() && !isDeleting() && !service_.groups().empty();
}

bool DuplicateFinderView::canDelete() const
{
    return canChoose() && filesToDelete() > 0;
}

QString DuplicateFinderView::scanText() const
{
    return service_.groups().empty() ? QStringLiteral("Start Scan") : QStringLiteral("Rescan");
}

QString DuplicateFinderView::stopText() const
{
    // The scan may be waiting for a disk that does not answer; the click shows all the same.
    return canStop() ? QStringLiteral("Stop") : QStringLiteral("Stopping…");
}

QString DuplicateFinderView::emptyText() const
{
    if (isScanning() || hasFigures())
        return {};
    return service_.groups().empty() ? QStringLiteral("Configure scan directories above and click Start Scan")
                                     : QStringLiteral("No duplicates match this filter.");
}

QString DuplicateFinderView::endText() const
{
    return isScanning() ? QString() : paths::inOneLine(service_.currentPath());
}

QString DuplicateFinderView::percentText() const
{
    return QStringLiteral("%1%").arg(static_cast<int>(progress() * 100));
}

QString DuplicateFinderView::currentPathText() const
{
    return paths::inOneLine(service_.currentPath());
}

QString DuplicateFinderView::groupsFigure() const
{
    return QString::number(figures_.groups);
}

QString DuplicateFinderView::filesFigure() const
{
    return QString::number(figures_.files);
}

QString DuplicateFinderView::wastedFigure() const
{
    return sizeText(figures_.wasted);
}

/// A pattern with the number of files set to go in the place of %1 and their size in that of %2.
QString DuplicateFinderView::amountText(const QString &pattern) const
{
    return pattern.arg(QString::number(filesToDelete()), sizeText(bytesToDelete()));
}

QString DuplicateFinderView::toDeleteFigure() const
{
    return filesToDelete() == 0 ? QString() : amountText(QStringLiteral("%1 files (%2)"));
}

QString DuplicateFinderView::footText() const
{
    return amountText(QStringLiteral("%1 files marked for deletion (%2)"));
}

QString DuplicateFinderView::deletingText() const
{
    return QStringLiteral("Moving files to the Trash: %1 of %2")
        .arg(service_.deletedFiles())
        .arg(service_.filesToDelete());
}

QString DuplicateFinderView::confirmText() const
{
    return amountText(QStringLiteral("Move %1 files (%2) to Trash? This can be undone from the Trash."));
}

void DuplicateFinderView::scan()
{
    if (!isScanning() && !isDeleting())
        service_.scan();
}

void DuplicateFinderView::stop()
{
    service_.setCancelRequested(true);
    emit stateChanged();
}

void DuplicateFinderView::toggleSettings()
{
    showSettings_ = !showSettings_;
    emit showSettingsChanged();
}

void DuplicateFinderView::chooseFilter(int chip)
{
    if (chip < 0 || chip >= filters().size())
        return;
    filter_ = filters()[chip];
    filterRows_.update({filters().begin(), filters().end()}, std::equal_to<QString>());
    showGroups();
}

void DuplicateFinderView::selectAllDuplicates()
{
    if (canChoose())
        service_.keepFirstInAllGroups();
}

void DuplicateFinderView::selectNone()
{
    if (canChoose())
        service_.keepAllInAllGroups();
}

void DuplicateFinderView::keepNewest()
{
    if (canChoose())
        service_.keepNewestInAllGroups();
}

void DuplicateFinderView::keepOldest()
{
    if (canChoose())
        service_.keepOldestInAllGroups();
}

void DuplicateFinderView::askToDelete()
{
    if (canDelete())
        setShowDeleteConfirm(true);
}

void DuplicateFinderView::cancelDelete()
{
    setShowDeleteConfirm(false);
}

void DuplicateFinderView::confirmDelete()
{
    if (!showDeleteConfirm_) // a second click on a dialog that is on its way out
        return;
    setShowDeleteConfirm(false);
    // Not from within the click: the run lets the event loop turn, and the screen with the button may go meanwhile.
    platform_.mainQueue.post([self = QPointer(this)] {
        if (self && self->canDelete())
            self->runDelete();
    });
}

void DuplicateFinderView::runDelete()
{
    const QPointer self(this); // another screen may be chosen during the run
    std::optional<qint64> result;
    try {
        result = service_.deleteMarked();
    } catch (const Error &) {
        // What failed stays in its group, and the activity log has it in words.
    }
    if (self)
        deleteResult_ = result;
}

void DuplicateFinderView::setShowDeleteConfirm(bool isUp)
{
    showDeleteConfirm_ = isUp;
    emit showDeleteConfirmChanged();
}
