#include "duplicates/screen/DuplicateFinderView.h"

#include "base/Error.h"
#include "base/GuardedPost.h"
#include "base/Paths.h"
#include "common/Formatters.h"
#include "common/NotificationNames.h"
#include "duplicates/screen/DuplicateFilter.h"
#include "filesystem/FileSystemService.h"

#include <functional>

namespace {

// Seconds between two pictures of a scan's progress: it may tell of thousands of folders a second, nobody reads more than
// a few, and each would be laid out.
constexpr double progressPeriod = 0.05;

const QString startScan = QStringLiteral("Start Scan");
const QString rescan = QStringLiteral("Rescan");
const QString stopScan = QStringLiteral("Stop");
const QString stopping = QStringLiteral("Stopping…");
const QString showSettingsText = QStringLiteral("Settings");
const QString hideSettingsText = QStringLiteral("Hide Settings");

/// The group of a head; none for any other row.
const DuplicateFileGroup *groupOf(const DuplicateService &service, const GroupRows::Row *row)
{
    return row && row->isHead() ? &service.groups()[row->group] : nullptr;
}

} // namespace

DuplicateFinderView::DuplicateFinderView(const Platform &platform, DuplicateService &service,
                                         FileSystemService &fileSystem, FDAService &access)
    : platform_(platform)
    , service_(service)
    , fileSystem_(fileSystem)
    , filter_(filters().front())
    , progressChanges_(platform.mainQueue, progressPeriod, [this] { emit progressChanged(); })
    , confirmation_([this] {
        guarded::runLater(platform_.mainQueue, *this, [](DuplicateFinderView &view) {
            if (view.canDelete())
                view.runDelete();
        });
    })
    , banner_(access, DuplicateService::accessContext)
    , scope_(platform, service)
    , filterRows_({
          {"label", [](const QString &filter) { return QString(filter.left(1).toUpper() + filter.mid(1)); }},
          {"countText", [](const QString &) { return QString(); }},
          {"isSelected", [this](const QString &filter) { return filter == filter_; }},
      })
    , sameFiles_(platform)
    , rows_(service.groups(), platform.home, [this](const QUuid &group) { return sameFiles_.kindOf(group); })
{
    filterRows_.reset({filters().begin(), filters().end()});
    observeService();
    connect(&sameFiles_, &SameFileMarks::changed, &rows_, &DuplicateRows::refreshAll);
    connect(&confirmation_, &Confirmation::changed, this, [this] {
        if (!confirmation_.isUp())
            keptOtherwise_.drop();
    });
    platform_.notifications.observe(notifications::rescan, this, [this](const QVariant &) { scan(); });
    showGroups();
}

void DuplicateFinderView::appear()
{
    banner_.appear();
    sameFiles_.lookUp(service_.groups());
}

void DuplicateFinderView::observeService()
{
    connect(&service_, &DuplicateService::groupsChanged, this, [this] {
        confirmation_.cancel(); // it has asked about files that are no longer what is set to go
        showGroups();
        sameFiles_.lookUp(service_.groups());
    });
    connect(&service_, &DuplicateService::groupsShrunk, this, [this] {
        filteredGroups_ = duplicatefilter::passing(service_.groups(), filter_);
        rows_.shrink(filteredGroups_);
        takeFigures();
        sameFiles_.lookUpShrunk(service_.groups());
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
    connect(&service_, &DuplicateService::progressChanged, this, [this] { progressChanges_.request(); });
    connect(&service_, &DuplicateService::currentPathChanged, this, [this] { progressChanges_.request(); });
    connect(&service_, &DuplicateService::scopeChanged, this, &DuplicateFinderView::stateChanged);
    connect(&service_, &DuplicateService::deletingChanged, this, [this] {
        emit stateChanged();
        emit deletingChanged();
    });
}

const QStringList &DuplicateFinderView::filters()
{
    return duplicatefilter::names();
}

const std::map<QString, QStringList> &DuplicateFinderView::extMap()
{
    return duplicatefilter::extensions();
}

void DuplicateFinderView::showGroups()
{
    emit rowsWillChange();
    filteredGroups_ = duplicatefilter::passing(service_.groups(), filter_);
    rows_.show(filteredGroups_);
    takeFigures();
}

void DuplicateFinderView::takeFigures()
{
    figures_ = figuresOf(service_.groups(), filteredGroups_);
    emit figuresChanged();
    emit stateChanged();
}

QString DuplicateFinderView::settingsText() const
{
    return showSettings_ ? hideSettingsText : showSettingsText;
}

QStringList DuplicateFinderView::settingsLabels() const
{
    return {showSettingsText, hideSettingsText};
}

QStringList DuplicateFinderView::stopLabels() const
{
    return {stopScan, stopping};
}

QStringList DuplicateFinderView::scanLabels() const
{
    return {startScan, rescan};
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
    return service_.groups().empty() ? startScan : rescan;
}

QString DuplicateFinderView::stopText() const
{
    // The scan may be waiting for a disk that does not answer; the click shows all the same.
    return canStop() ? stopScan : stopping;
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

QString DuplicateFinderView::toDeleteFigure() const
{
    return filesToDelete() == 0 ? QString() : figures_.amountText(QStringLiteral("%1 files (%2)"));
}

QString DuplicateFinderView::footText() const
{
    return figures_.amountText(QStringLiteral("%1 files marked for deletion (%2)"));
}

QString DuplicateFinderView::deletingText() const
{
    return QStringLiteral("Moving files to the Trash: %1 of %2")
        .arg(service_.deletedFiles())
        .arg(service_.filesToDelete());
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
    if (!canDelete())
        return;
    confirmation_.ask(figures_.amountText(
        QStringLiteral("Move %1 files (%2) to Trash? This can be undone from the Trash.")));
    const DeleteNote note = deletenotes::fromGroups(service_.groups(), filteredGroups_);
    confirmation_.setNote(note.text());
    addKeptOtherwise(note);
}

/// Completes the question's note by what only the disk can tell. The question does not wait for it.
void DuplicateFinderView::addKeptOtherwise(DeleteNote note)
{
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this),
                                                           question = keptOtherwise_.ask(), note,
                                                           choices = deletenotes::choices(service_.groups()),
                                                           &main = platform_.mainQueue]() mutable {
        note.keptOtherwise = deletenotes::countOfKept(choices, [&] { return question.isUnwanted(); });
        question.answer(main, self,
                        [note](DuplicateFinderView &view) { view.confirmation_.setNote(note.text()); });
    });
}

void DuplicateFinderView::runDelete()
{
    try {
        deleteResult_ = service_.deleteMarked();
    } catch (const Error &) {
        // What failed stays in its group, and the activity log has it in words.
        deleteResult_.reset();
    }
}

const DuplicateFileEntry *DuplicateFinderView::fileAt(int row) const
{
    const GroupRows::Row *found = rows_.row(row);
    if (!found || found->isHead())
        return nullptr;
    return &service_.groups()[found->group].files[static_cast<size_t>(found->member)];
}

bool DuplicateFinderView::isFile(int row) const
{
    return fileAt(row) != nullptr;
}

void DuplicateFinderView::keepNewestOf(int row)
{
    const DuplicateFileGroup *group = groupOf(service_, rows_.row(row));
    if (group && canChoose())
        service_.keepNewest(group->id);
}

void DuplicateFinderView::keepOldestOf(int row)
{
    const DuplicateFileGroup *group = groupOf(service_, rows_.row(row));
    if (group && canChoose())
        service_.keepOldest(group->id);
}

void DuplicateFinderView::toggleKeep(int row)
{
    if (!isFile(row) || !canChoose())
        return;
    const GroupRows::Row found = *rows_.row(row);
    service_.toggleKeep(found.group, static_cast<size_t>(found.member));
}

void DuplicateFinderView::keepOnly(int row)
{
    if (!isFile(row) || !canChoose())
        return;
    const GroupRows::Row found = *rows_.row(row);
    service_.keepOnly(found.group, static_cast<size_t>(found.member));
}

QString DuplicateFinderView::toggleText(int row) const
{
    const DuplicateFileEntry *file = fileAt(row);
    return file && file->keep ? QStringLiteral("Mark for Deletion") : QStringLiteral("Keep This One");
}

void DuplicateFinderView::open(int row)
{
    if (const DuplicateFileEntry *file = fileAt(row))
        platform_.workspace.open(file->path);
}

void DuplicateFinderView::quickLook(int row)
{
    const DuplicateFileEntry *file = fileAt(row);
    if (!file)
        return;
    const QString path = file->path; // the desktop may let the event loop turn
    platform_.workspace.reveal(path);
    platform_.workspace.quickLook(path);
}

void DuplicateFinderView::reveal(int row)
{
    if (const DuplicateFileEntry *file = fileAt(row))
        fileSystem_.revealInFinder(file->path);
}

void DuplicateFinderView::copyPath(int row)
{
    if (const DuplicateFileEntry *file = fileAt(row))
        platform_.workspace.copyText(file->path);
}
