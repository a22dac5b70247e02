#include "duplicates/screen/DuplicateScopeView.h"

#include "base/Files.h"
#include "base/GuardedPost.h"
#include "base/Paths.h"
#include "common/Formatters.h"

#include <QPointer>

#include <algorithm>

namespace {

/// The record of a row; empty where there is none.
QString at(const RecordListModel<QString> &rows, int row)
{
    return row >= 0 && row < rows.rowCount() ? rows.records()[static_cast<size_t>(row)] : QString();
}

std::vector<QString> recordsOf(const QStringList &list)
{
    return {list.begin(), list.end()};
}

bool isSame(const QString &left, const QString &right)
{
    return left == right;
}

/// Takes a new list. A record that was changed for another keeps its row, and with it the keyboard where it is.
void take(RecordListModel<QString> &rows, const QStringList &list)
{
    const std::vector<QString> &before = rows.records();
    std::vector<QString> now = recordsOf(list);
    const auto [old, other] = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
    const bool isOneChanged = before.size() == now.size() && old != before.end()
                              && std::equal(old + 1, before.end(), other + 1, now.end());
    if (isOneChanged)
        rows.replace(static_cast<int>(old - before.begin()), *other);
    else
        rows.update(std::move(now), isSame);
}

/// The folders among the places, links followed, each without a slash at its end. Blocks for as long as the disk does.
QStringList foldersAmong(const QList<QUrl> &urls)
{
    QStringList folders;
    for (const QUrl &url : urls) {
        QString path = paths::fromFileUrl(url.toEncoded());
        while (path.size() > 1 && path.endsWith(u'/'))
            path.chop(1);
        if (!path.isEmpty() && files::isDirectory(path))
            folders.append(path);
    }
    return folders;
}

} // namespace

DuplicateScopeView::DuplicateScopeView(const Platform &platform, DuplicateService &service, QObject *parent)
    : QObject(parent)
    , platform_(platform)
    , service_(service)
    , scanPathRows_({{"pathText", [this](const QString &path) { return ruleText(path); }}})
    , ruleRows_({
          {"ruleText", [this](const QString &rule) { return ruleText(rule); }},
          {"symbol", [this](const QString &rule) { return ruleSymbol(rule); }},
          {"hint", [this](const QString &rule) { return ruleHint(rule); }},
          {"isOverridden", [this](const QString &rule) { return service_.isOverridden(rule); }},
          {"canBeRemoved", [this](const QString &rule) { return canBeRemoved(rule); }},
      })
{
    connect(&service_, &DuplicateService::scopeChanged, this, &DuplicateScopeView::takeScope);
    connect(&service_, &DuplicateService::minFileSizeChanged, this, &DuplicateScopeView::minSizeChanged);
    takeScope();
}

const std::vector<DuplicateScopeView::MinSizeOption> &DuplicateScopeView::minSizeOptions()
{
    static const std::vector<MinSizeOption> options = {
        {QStringLiteral("1 KB"), 1024},      {QStringLiteral("10 KB"), 10240},
        {QStringLiteral("100 KB"), 102400},  {QStringLiteral("1 MB"), 1048576},
        {QStringLiteral("10 MB"), 10485760},
    };
    return options;
}

void DuplicateScopeView::takeScope()
{
    take(scanPathRows_, service_.scanPaths());
    ruleRows_.update(recordsOf(service_.ignorePaths()), isSame);
    emit scopeChanged();
}

QString DuplicateScopeView::ruleText(const QString &rule) const
{
    return paths::inOneLine(paths::withTilde(rule, platform_.home));
}

QString DuplicateScopeView::ruleSymbol(const QString &rule) const
{
    if (service_.isOverridden(rule))
        return QStringLiteral("lock.open.fill");
    return service_.isBuiltIn(rule) ? QStringLiteral("lock.fill") : QStringLiteral("folder.badge.minus");
}

QString DuplicateScopeView::ruleHint(const QString &rule) const
{
    if (service_.isOverridden(rule))
        return QStringLiteral(
            "Overridden — a scan path is pointing inside this folder, so it WILL be scanned.");
    return service_.isBuiltIn(rule) ? QStringLiteral("Built-in default — always excluded") : QString();
}

bool DuplicateScopeView::canBeRemoved(const QString &rule) const
{
    return !service_.isBuiltIn(rule);
}

QStringList DuplicateScopeView::minSizeLabels() const
{
    QStringList labels;
    for (const MinSizeOption &option : minSizeOptions())
        labels.append(option.label);
    return labels;
}

int DuplicateScopeView::minSizeIndex() const
{
    const auto &options = minSizeOptions();
    const auto chosen = std::find_if(options.begin(), options.end(), [this](const MinSizeOption &option) {
        return option.bytes == service_.minFileSize();
    });
    return chosen == options.end() ? -1 : static_cast<int>(chosen - options.begin());
}

QString DuplicateScopeView::minSizeText() const
{
    const int index = minSizeIndex();
    return index < 0 ? sizeText(service_.minFileSize()) : minSizeOptions()[static_cast<size_t>(index)].label;
}

void DuplicateScopeView::chooseFolder(
    const QString &message, const QString &start,
    const std::function<void(DuplicateService &service, const QString &folder)> &use)
{
    // Whoever looks for duplicates may look for them in hidden folders and inside packages too.
    const Workspace::FolderRequest request{message, start, true};
    platform_.workspace.chooseFolder(
        request, [service = QPointer(&service_), use](const std::optional<QString> &folder) {
            if (service && folder)
                use(*service, *folder);
        });
}

void DuplicateScopeView::addFolder()
{
    chooseFolder(QStringLiteral("Select a directory to scan for duplicates"), {},
                 std::mem_fn(&DuplicateService::addScanPath));
}

void DuplicateScopeView::dropFolders(const QList<QUrl> &urls)
{
    // On a thread of its own: a folder of a mount that does not answer may be among them.
    platform_.workQueue.post(
        WorkPriority::userInitiated, [service = QPointer(&service_), urls, &main = platform_.mainQueue] {
            guarded::post(main, service, [folders = foldersAmong(urls)](DuplicateService &living) {
                for (const QString &folder : folders)
                    living.addScanPath(folder);
            });
        });
}

void DuplicateScopeView::changeScanPath(int row)
{
    const QString old = at(scanPathRows_, row);
    if (old.isEmpty())
        return;
    chooseFolder(
        QStringLiteral("Choose a different folder to scan"), old,
        [old](DuplicateService &service, const QString &folder) { service.replaceScanPath(old, folder); });
}

void DuplicateScopeView::removeScanPath(int row)
{
    const QString path = at(scanPathRows_, row);
    if (!path.isEmpty())
        service_.removeScanPath(path);
}

void DuplicateScopeView::addExclusion()
{
    chooseFolder(QStringLiteral("Select a directory to exclude from scanning"), {},
                 std::mem_fn(&DuplicateService::addIgnorePath));
}

void DuplicateScopeView::removeExclusion(int row)
{
    const QString rule = at(ruleRows_, row);
    if (!rule.isEmpty() && canBeRemoved(rule))
        service_.removeIgnorePath(rule);
}

void DuplicateScopeView::resetToDefaults()
{
    service_.resetScope();
}

void DuplicateScopeView::chooseMinSize(int index)
{
    if (index >= 0 && static_cast<size_t>(index) < minSizeOptions().size())
        service_.setMinFileSize(minSizeOptions()[static_cast<size_t>(index)].bytes);
}
