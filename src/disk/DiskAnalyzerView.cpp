#include "disk/DiskAnalyzerView.h"

#include "base/Error.h"
#include "base/GuardedPost.h"
#include "base/Paths.h"
#include "common/Formatters.h"
#include "common/KeySigns.h"
#include "disk/AnalyzerContents.h"
#include "filesystem/FileSystemService.h"

#include <QPointer>

namespace {

constexpr double stopPatience = 3; // seconds for which a cancelled scan may go on unwinding

/// A child that keeps its parent's tree alive.
DiskAnalyzerView::Entry childOf(const DiskAnalyzerView::Entry &parent, size_t index)
{
    return {parent, &(*parent->children)[index]};
}

size_t childCount(const DiskAnalyzerView::Entry &entry)
{
    return entry && entry->children ? entry->children->size() : 0;
}

} // namespace

DiskAnalyzerView::DiskAnalyzerView(const Platform &platform, DiskService &diskService,
                                   FileSystemService &fileSystem, FDAService &access)
    : platform_(platform)
    , diskService_(diskService)
    , fileSystem_(fileSystem)
    , pill_(platform, [this] { return diskService_.cacheLifetime(); })
    , breadcrumbRows_({{"entryName", [](const Entry &entry) { return paths::inOneLine(entry->name); }}})
    , contentRows_({
          {"symbol", [](const Row &row) { return analyzer::rowSymbol(*row.entry); }},
          {"entryName", [](const Row &row) { return paths::inOneLine(row.entry->name); }},
          {"sizeText", [](const Row &row) { return sizeText(row.entry->size); }},
          {"shareText", [](const Row &row) { return analyzer::shareText(row.share); }},
          {"spokenText",
           [](const Row &row) {
               return sizeText(row.entry->size) + QStringLiteral(", ") + analyzer::shareText(row.share);
           }},
          {"share", [](const Row &row) { return row.share; }},
          {"isFolder", [](const Row &row) { return row.entry->isDirectory; }},
      })
    , banner_(access, DiskService::accessContext)
{
    connect(&diskService_, &DiskService::isScanningAnalyzerChanged, this, &DiskAnalyzerView::takeScanState);
    connect(&diskService_, &DiskService::analyzerRootChanged, this, &DiskAnalyzerView::showCurrentEntry);
    connect(&diskService_, &DiskService::analyzerScanPathChanged, this, &DiskAnalyzerView::contentChanged);
    connect(&diskService_, &DiskService::lastAnalyzerScanChanged, this, &DiskAnalyzerView::showAge);
    connect(&diskService_, &DiskService::isTrashingChanged, this, &DiskAnalyzerView::scanChanged);
    treemap_.onTap = [this](const StorageCategory &category) { openChildNamed(category.name); };
    showAge();
    showCurrentEntry();
}

QString DiskAnalyzerView::title() const
{
    return QStringLiteral("Disk Analyzer");
}

QString DiskAnalyzerView::symbol() const
{
    return QStringLiteral("internaldrive");
}

QString DiskAnalyzerView::refreshSequence() const
{
    return keysigns::sequence(QStringLiteral("⌘R"));
}

QString DiskAnalyzerView::progressText() const
{
    return QStringLiteral("Scanning %1").arg(paths::inOneLine(diskService_.analyzerScanPath()));
}

void DiskAnalyzerView::takeScanState()
{
    stop_ = isScanning() || diskService_.analyzerRoot() ? Stop::none : Stop::stopping;
    stopWait_.drop();
    if (stop_ == Stop::stopping) {
        guarded::postAfter(platform_.mainQueue, stopPatience, QPointer(this),
                           [wait = stopWait_.ask()](DiskAnalyzerView &view) {
                               if (wait.isUnwanted())
                                   return;
                               view.stop_ = Stop::stopped;
                               emit view.contentChanged();
                           });
    }
    showAge();
    emit scanChanged();
    emit contentChanged();
}

QString DiskAnalyzerView::stoppedText() const
{
    if (!isTreeMissing() || stop_ == Stop::none)
        return {};
    return hasStopped() ? texts().scanStopped : texts().stopping;
}

bool DiskAnalyzerView::isListAwaited() const
{
    return isScanningDeeper_ || (isTreeMissing() && stop_ == Stop::stopping);
}

QString DiskAnalyzerView::location() const
{
    const Entry entry = currentEntry();
    return entry ? paths::inOneLine(entry->path) : QString();
}

void DiskAnalyzerView::showAge()
{
    const bool isTreeComing = stop_ != Stop::none; // the last one has gone, and its age says nothing any more
    pill_.set(isTreeComing ? std::nullopt : diskService_.lastAnalyzerScan(), isScanning());
}

QString DiskAnalyzerView::mapSummary() const
{
    const Entry entry = currentEntry();
    return entry ? QStringLiteral("%1 items · %2").arg(childCount(entry)).arg(sizeText(entry->size))
                 : QString();
}

bool DiskAnalyzerView::isMapEmpty() const
{
    const Entry entry = currentEntry();
    return !entry || !entry->hasChildren() || analyzer::mapCategories(*entry).empty();
}

QString DiskAnalyzerView::contentsHeader() const
{
    return QStringLiteral("CONTENTS (%1 items)").arg(childCount(currentEntry()));
}

QString DiskAnalyzerView::parentRowText() const
{
    if (breadcrumb_.empty())
        return {};
    const QString parent = breadcrumb_.size() > 1
                               ? paths::inOneLine(breadcrumb_[breadcrumb_.size() - 2]->name)
                               : QStringLiteral("Home");
    return QStringLiteral("..  ") + parent;
}

bool DiskAnalyzerView::isEmptyDirectory() const
{
    return hasEntry() && !isScanningDeeper_ && !currentEntry()->hasChildren();
}

DiskAnalyzerView::Entry DiskAnalyzerView::currentEntry() const
{
    return breadcrumb_.empty() ? diskService_.analyzerRoot() : breadcrumb_.back();
}

DiskAnalyzerView::Entry DiskAnalyzerView::child(int row) const
{
    const Entry entry = currentEntry();
    const bool isThere = row >= 0 && static_cast<size_t>(row) < childCount(entry);
    return isThere ? childOf(entry, static_cast<size_t>(row)) : nullptr;
}

void DiskAnalyzerView::appear()
{
    banner_.appear();
    diskService_.scanAnalyzer(diskService_.analyzerScanPath(), false);
}

void DiskAnalyzerView::refresh()
{
    if (!isScanning())
        rescan();
}

void DiskAnalyzerView::rescan()
{
    startScan(diskService_.analyzerScanPath());
}

void DiskAnalyzerView::startScan(const QString &path)
{
    setBreadcrumb({});
    diskService_.scanAnalyzer(path, true);
}

void DiskAnalyzerView::changeFolder()
{
    const Workspace::FolderRequest request{QStringLiteral("Choose a folder to analyze"),
                                           diskService_.analyzerScanPath()};
    platform_.workspace.chooseFolder(request, [self = QPointer(this)](const std::optional<QString> &folder) {
        if (!self || !folder)
            return;
        self->diskService_.setAnalyzerScanPath(*folder);
        self->startScan(*folder);
    });
}

void DiskAnalyzerView::cancelScan()
{
    diskService_.cancelAnalyzerScan();
}

void DiskAnalyzerView::goBack()
{
    if (!breadcrumb_.empty())
        goTo(static_cast<int>(breadcrumb_.size()) - 2);
}

void DiskAnalyzerView::goHome()
{
    goTo(-1);
}

void DiskAnalyzerView::goTo(int index)
{
    if (index < -1 || index >= static_cast<int>(breadcrumb_.size()))
        return;
    const auto firstLeft = breadcrumb_.begin() + index + 1;
    const QString left = firstLeft == breadcrumb_.end() ? QString() : (*firstLeft)->name;
    setBreadcrumb({breadcrumb_.begin(), firstLeft});
    const Entry entry = currentEntry();
    for (size_t i = 0; i < childCount(entry); ++i) {
        if ((*entry->children)[i].name == left)
            return emit wentBack(static_cast<int>(i));
    }
}

void DiskAnalyzerView::openInFinder()
{
    if (const Entry entry = currentEntry())
        platform_.workspace.showFolder(entry->path);
}

void DiskAnalyzerView::openRow(int row)
{
    openEntry(child(row));
}

void DiskAnalyzerView::activateRow(int row)
{
    const Entry entry = child(row);
    if (entry && !entry->isDirectory)
        platform_.workspace.open(entry->path);
    else
        openEntry(entry);
}

QString DiskAnalyzerView::openText(int row) const
{
    const Entry entry = child(row);
    return entry && !entry->isDirectory ? QStringLiteral("Open") : QStringLiteral("Drill Into");
}

void DiskAnalyzerView::revealRow(int row)
{
    if (const Entry entry = child(row))
        fileSystem_.revealInFinder(entry->path);
}

void DiskAnalyzerView::copyPath(int row)
{
    if (const Entry entry = child(row))
        platform_.workspace.copyText(entry->path);
}

void DiskAnalyzerView::openTerminal(int row)
{
    if (const Entry entry = child(row))
        fileSystem_.openInTerminal(entry->isDirectory ? entry->path : paths::parent(entry->path));
}

QString DiskAnalyzerView::trashText() const
{
    return isScanning() ? QStringLiteral("Move to Trash (wait for scan)") : QStringLiteral("Move to Trash");
}

void DiskAnalyzerView::moveToTrash(int row)
{
    const Entry entry = child(row);
    if (!entry || !canTrash())
        return;
    guarded::runLater(platform_.mainQueue, *this, [entry](DiskAnalyzerView &self) { self.runTrash(entry); });
}

void DiskAnalyzerView::runTrash(const Entry &entry)
{
    if (!canTrash()) // a scan or another move has begun since the click
        return;
    const Entry shown = currentEntry();
    try {
        diskService_.moveToTrash(entry->path);
    } catch (const Error &) {
        // Dropped without a word: the row stays, and a rescan tells what is there.
    }
    if (currentEntry() == shown) // nobody has gone elsewhere meanwhile
        openEntry(shown);
}

void DiskAnalyzerView::openChildNamed(const QString &name)
{
    const Entry entry = currentEntry();
    for (size_t i = 0; i < childCount(entry); ++i) {
        if ((*entry->children)[i].name == name)
            return openEntry(childOf(entry, i));
    }
}

void DiskAnalyzerView::openEntry(const Entry &entry)
{
    if (!entry || !entry->isDirectory)
        return;
    if (entry->hasChildren())
        append(entry);
    else if (!isScanningDeeper_) // a second click while a level loads would only append that level twice
        scanDeeper(entry->path);
}

void DiskAnalyzerView::append(const Entry &entry)
{
    std::vector<Entry> longer = breadcrumb_;
    longer.push_back(entry);
    setBreadcrumb(std::move(longer));
}

void DiskAnalyzerView::scanDeeper(const QString &path)
{
    isScanningDeeper_ = true;
    emit contentChanged();
    platform_.workQueue.post(
        WorkPriority::userInitiated,
        [self = QPointer(this), path, &main = platform_.mainQueue, &fileSystem = fileSystem_] {
            fileSystem.scanCancelled.store(false, std::memory_order_relaxed);
            const Entry tree = std::make_shared<const FileEntry>(fileSystem.scanTree(path, 0, 1));
            guarded::post(main, self, [tree](DiskAnalyzerView &view) {
                view.isScanningDeeper_ = false;
                view.append(tree);
            });
        });
}

void DiskAnalyzerView::setBreadcrumb(std::vector<Entry> breadcrumb)
{
    breadcrumb_ = std::move(breadcrumb);
    showCurrentEntry();
}

void DiskAnalyzerView::showCurrentEntry()
{
    const Entry entry = currentEntry();
    std::vector<Row> rows;
    for (size_t i = 0; i < childCount(entry); ++i) {
        const Entry childEntry = childOf(entry, i);
        rows.push_back({childEntry, analyzer::share(childEntry->size, entry->size)});
    }
    emit entryWillChange();
    // Rows that go and come let the view make the new ones while it prepares its next picture; a reset makes it do so
    // here, inside our own turn of the main loop.
    contentRows_.update(std::move(rows), [](const Row &, const Row &) { return false; });
    breadcrumbRows_.update(breadcrumb_, [](const Entry &left, const Entry &right) { return left == right; });
    treemap_.setCategories(entry && entry->children ? analyzer::mapCategories(*entry)
                                                    : std::vector<StorageCategory>());
    emit contentChanged();
}
