#include "apps/screen/AppLists.h"

#include "base/Sums.h"
#include "common/Formatters.h"

#include <algorithm>

namespace {

template<typename Record>
const Record *find(const std::vector<Record> &records, const QUuid &id)
{
    const auto found = std::ranges::find(records, id, &Record::id);
    return found == records.end() ? nullptr : &*found;
}

} // namespace

AppLists::AppLists(const Clock &clock, AppService &service)
    : service_(service)
    , installed_(installedlist::roles(clock))
    , ghosts_(ghostlist::roles())
{
    observeService();
    showInstalled();
    showGhosts();
}

void AppLists::observeService()
{
    connect(&service_, &AppService::appsChanged, this, [this] {
        emit rowsWillChange();
        showInstalled();
        emit appsReplaced();
    });
    connect(&service_, &AppService::appsShrunk, this, &AppLists::showInstalled);
    connect(&service_, &AppService::appTicksChanged, this, &AppLists::showInstalled);
    connect(&service_, &AppService::appChanged, this, [this](size_t index) {
        installed_.refresh(installedlist::row(service_.apps()[index]));
        addUp();
    });
    connect(&service_, &AppService::ghostsChanged, this, [this] {
        emit rowsWillChange();
        showGhosts();
        emit ghostsReplaced();
    });
    connect(&service_, &AppService::ghostsShrunk, this, &AppLists::showGhosts);
    connect(&service_, &AppService::ghostTicksChanged, this, &AppLists::showGhosts);
    connect(&service_, &AppService::ghostChanged, this, [this](size_t index) {
        ghosts_.refresh(ghostlist::row(service_.ghosts()[index]));
        addUp();
    });
}

void AppLists::showInstalled()
{
    installed_.show(installedlist::rows(service_.apps(), searchText_, sortBy_));
    addUp();
}

void AppLists::showGhosts()
{
    ghosts_.show(ghostlist::rows(service_.ghosts(), searchText_));
    addUp();
}

void AppLists::addUp()
{
    selectedApps_ = selectiontexts::selected(service_.apps());
    selectedGhosts_ = ghostlist::pending(service_.ghosts());
    totalSize_ = 0;
    for (const RealInstalledApp &app : service_.apps())
        totalSize_ = sums::saturated(totalSize_, app.totalSize());
    emit changed();
}

void AppLists::setSearchText(const QString &text)
{
    if (text == searchText_)
        return;
    searchText_ = text;
    emit rowsWillChange();
    showInstalled();
    showGhosts();
}

void AppLists::chooseSort(int option)
{
    if (option < 0 || option >= sortLabels().size() || option == sortBy())
        return;
    sortBy_ = static_cast<installedlist::SortOption>(option);
    emit rowsWillChange();
    showInstalled();
}

QString AppLists::installedFigure() const
{
    return QString::number(service_.apps().size());
}

QString AppLists::totalFigure() const
{
    return sizeText(totalSize_);
}

QString AppLists::ghostFigure() const
{
    return QString::number(service_.ghosts().size());
}

const RealInstalledApp *AppLists::appAt(int row) const
{
    return find(service_.apps(), installed_.idAt(row));
}

const GhostApp *AppLists::ghostAt(int row) const
{
    return find(service_.ghosts(), ghosts_.idAt(row));
}
