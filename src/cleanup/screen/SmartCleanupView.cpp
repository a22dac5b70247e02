#include "cleanup/screen/SmartCleanupView.h"

#include "base/GuardedPost.h"
#include "base/Sums.h"
#include "common/CacheLifetime.h"
#include "common/Formatters.h"
#include "common/NotificationNames.h"
#include "filesystem/FileSystemService.h"
#include "platform/Platform.h"

namespace {
const QString stopScan = QStringLiteral("Cancel");
const QString stopping = QStringLiteral("Stopping…");
} // namespace

SmartCleanupView::SmartCleanupView(const Platform &platform, CleanupViewModel &service,
                                   FileSystemService &fileSystem, FDAService &access)
    : platform_(platform)
    , service_(service)
    , fileSystem_(fileSystem)
    , willScan_(canScan() && !service.isCacheFresh())
    , confirmation_([this] {
        guarded::runLater(platform_.mainQueue, *this, [](SmartCleanupView &view) { view.runClean(); });
    })
    , banner_(access, CleanupViewModel::accessContext)
    , pill_(platform, [&platform] { return cacheLifetime(platform.defaults); })
    , rows_(service, platform.home)
{
    observeService();
    connect(&confirmation_, &Confirmation::changed, this, [this] {
        if (service_.showConfirmClean() != confirmation_.isUp())
            service_.setShowConfirmClean(confirmation_.isUp());
    });
    service_.setShowConfirmClean(false); // a question goes with the screen that has put it
    platform_.notifications.observe(notifications::rescan, this, [this](const QVariant &) { rescan(); });
    showCategories();
    takeState();
}

void SmartCleanupView::observeService()
{
    connect(&service_, &CleanupViewModel::categoriesChanged, this, &SmartCleanupView::showCategories);
    connect(&service_, &CleanupViewModel::choicesEmptied, this, [this] {
        confirmation_.cancel(); // it has asked about choices that are gone
        rows_.resizeAll();
        // A tick that has lost its files would stand for all of its category, even of a locked one.
        service_.selectNone();
    });
    connect(&service_, &CleanupViewModel::categoryChanged, this, [this](const QString &id) {
        rows_.resizeCategory(id);
        takeChoice();
    });
    connect(&service_, &CleanupViewModel::ticksChanged, this, [this] {
        rows_.refreshAll();
        takeChoice();
    });
    connect(&service_, &CleanupViewModel::isScanningChanged, this, &SmartCleanupView::takeState);
    connect(&service_, &CleanupViewModel::isCleaningChanged, this, &SmartCleanupView::takeState);
    connect(&service_, &CleanupViewModel::lastScanTimeChanged, this, &SmartCleanupView::takeState);
}

void SmartCleanupView::takeState()
{
    pill_.set(service_.lastScanTime(), isScanning());
    emit stateChanged();
    emit choiceChanged(); // what may be done with it goes by the state
}

void SmartCleanupView::takeChoice()
{
    total_ = 0;
    selected_ = {};
    for (const CleanupCategory &category : service_.categories()) {
        total_ = sums::saturated(total_, category.size);
        if (!category.checked)
            continue;
        const qint64 picked = service_.selectedFilePaths().value(category.id).size();
        ++selected_.categories;
        selected_.items = sums::saturated(selected_.items, picked > 0 ? picked : category.fileCount);
    }
    selected_.size = service_.selectedSize();
    emit choiceChanged();
    if (confirmation_.isUp()) // a preview that has arrived tells what exactly is to go
        confirmation_.ask(service_.question());
}

void SmartCleanupView::showCategories()
{
    confirmation_.cancel();
    emit rowsWillChange();
    rows_.showAll();
    takeChoice();
    emit stateChanged();
}

void SmartCleanupView::appear()
{
    willScan_ = false;
    banner_.appear();
    if (!service_.isCacheFresh())
        rescan();
    emit stateChanged();
}

void SmartCleanupView::rescan()
{
    if (canScan())
        service_.scan();
}

void SmartCleanupView::stop()
{
    if (!canStop())
        return;
    service_.stopScan();
    emit stateChanged();
}

QString SmartCleanupView::stopText() const
{
    // The scan may be waiting for a disk that does not answer; the click shows all the same.
    return isScanning() && !canStop() ? stopping : stopScan;
}

QStringList SmartCleanupView::stopLabels() const
{
    return {stopScan, stopping};
}

QString SmartCleanupView::emptyText() const
{
    return hasList() || isSearching() ? QString() : QStringLiteral("Your system is clean!");
}

QString SmartCleanupView::emptyDetail() const
{
    return emptyText().isEmpty() ? QString()
                                 : QStringLiteral("No significant cache or temporary files found.");
}

QString SmartCleanupView::categoriesFigure() const
{
    return QString::number(service_.categories().size());
}

QString SmartCleanupView::totalFigure() const
{
    return sizeText(total_);
}

QString SmartCleanupView::selectedFigure() const
{
    return sizeText(selected_.size);
}

QString SmartCleanupView::footText() const
{
    return QStringLiteral("%1 categories selected · %2 to clean")
        .arg(QString::number(selected_.categories), sizeText(selected_.size));
}

QString SmartCleanupView::cleanText() const
{
    if (isCleaning())
        return QStringLiteral("Cleaning…");
    if (selected_.size != 0)
        return confirmText();
    if (!hasSelected())
        return QStringLiteral("Clean");
    return (selected_.items == 1 ? QStringLiteral("Clean %1 item") : QStringLiteral("Clean %1 items"))
        .arg(selected_.items);
}

QString SmartCleanupView::confirmText() const
{
    return QStringLiteral("Clean %1").arg(sizeText(selected_.size));
}

void SmartCleanupView::selectAll()
{
    if (canSelect())
        service_.selectAll();
}

void SmartCleanupView::selectNone()
{
    if (canSelect())
        service_.selectNone();
}

void SmartCleanupView::askToClean()
{
    if (canClean())
        confirmation_.ask(service_.question());
}

void SmartCleanupView::runClean()
{
    if (canClean())
        service_.clean();
}

QString SmartCleanupView::text(int row, CleanupRows::Role role) const
{
    return rows_.row(row) ? rows_.data(rows_.index(row), role).toString() : QString();
}

QString SmartCleanupView::menuKind(int row) const
{
    const bool hasNoMenu = rows_.is(CleanupRows::Kind::note, row) || rows_.is(CleanupRows::Kind::status, row)
                           || (rows_.is(CleanupRows::Kind::end, row) && moreText(row).isEmpty());
    return hasNoMenu ? QString() : text(row, CleanupRows::kindRole);
}

void SmartCleanupView::activate(int row)
{
    togglePreview(row);
    toggleFile(row);
}

void SmartCleanupView::open(int row)
{
    activate(row);
    toggleReviewed(row);
    showMore(row);
}

void SmartCleanupView::toggle(int row)
{
    toggleTick(row);
    toggleFile(row);
    toggleReviewed(row);
    showMore(row);
}

void SmartCleanupView::toggleTick(int row)
{
    if (canChoose() && rows_.is(CleanupRows::Kind::category, row))
        service_.toggle(rows_.category(row)->id);
}

void SmartCleanupView::togglePreview(int row)
{
    if (!rows_.is(CleanupRows::Kind::category, row))
        return;
    const QString id = rows_.category(row)->id;
    service_.setExpanded(id, !service_.expandedPreviews().value(id));
}

void SmartCleanupView::toggleReviewed(int row)
{
    const CleanupCategory *category = rows_.category(row);
    if (canChoose() && rows_.is(CleanupRows::Kind::note, row) && !category->safe)
        service_.setReviewed(category->id, !service_.reviewedUnsafe().value(category->id));
}

void SmartCleanupView::toggleFile(int row)
{
    if (const PreviewFile *file = canChoose() ? rows_.file(row) : nullptr)
        service_.toggleFile(rows_.category(row)->id, file->path);
}

void SmartCleanupView::selectAllFiles(int row)
{
    if (canChoose() && rows_.is(CleanupRows::Kind::guide, row))
        service_.selectAllFiles(rows_.category(row)->id);
}

void SmartCleanupView::selectNoFiles(int row)
{
    if (canChoose() && rows_.is(CleanupRows::Kind::guide, row))
        service_.selectNoFiles(rows_.category(row)->id);
}

void SmartCleanupView::showMore(int row)
{
    if (moreText(row).isEmpty())
        return;
    const CleanupCategory &category = *rows_.category(row);
    service_.setPreviewVisibleCount(category.id, rows_.shownFiles(category) + CleanupRows::moreFiles);
}

void SmartCleanupView::showAllFiles(int row)
{
    if (allText(row).isEmpty())
        return;
    const QString id = rows_.category(row)->id;
    service_.setPreviewVisibleCount(id, static_cast<int>(service_.previewFiles().constFind(id)->size()));
}

void SmartCleanupView::revealCategory(int row)
{
    const bool isCategory = rows_.is(CleanupRows::Kind::category, row);
    if (isCategory && !rows_.category(row)->paths.isEmpty())
        platform_.workspace.showFolder(rows_.category(row)->paths.constFirst());
}

void SmartCleanupView::openFile(int row)
{
    if (const PreviewFile *file = rows_.file(row))
        platform_.workspace.open(file->path);
}

void SmartCleanupView::revealFile(int row)
{
    if (const PreviewFile *file = rows_.file(row))
        fileSystem_.revealInFinder(file->path);
}

void SmartCleanupView::copyPath(int row)
{
    if (const PreviewFile *file = rows_.file(row))
        platform_.workspace.copyText(file->path);
}

QString SmartCleanupView::toggleText(int row) const
{
    const PreviewFile *file = rows_.file(row);
    return file && rows_.isPicked(*rows_.category(row), file->path) ? QStringLiteral("Exclude from Cleanup")
                                                                    : QStringLiteral("Include in Cleanup");
}

QString SmartCleanupView::previewText(int row) const
{
    return text(row, CleanupRows::previewTipRole);
}

QString SmartCleanupView::moreText(int row) const
{
    return text(row, CleanupRows::moreRole);
}

QString SmartCleanupView::allText(int row) const
{
    return text(row, CleanupRows::allRole);
}
