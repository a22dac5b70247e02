#include "duplicates/screen/DuplicateRows.h"

#include "base/Paths.h"
#include "common/DateTexts.h"
#include "common/Formatters.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

/// With more gaps than this it is quicker to take the list anew.
constexpr size_t mostGaps = 100;

/// In the place of the group of a row that is about to go.
constexpr size_t nowhere = std::numeric_limits<size_t>::max();

/// Rows that go: the first and the one behind the last.
using Gap = std::pair<int, int>;

/// Where rows are missing in `shorter`. Gives false when it is not simply the old list with rows missing.
bool findGaps(const std::vector<DuplicateRows::Row> &longer, const std::vector<DuplicateRows::Row> &shorter,
              std::vector<Gap> &gaps)
{
    size_t next = 0;
    for (size_t old = 0; old < longer.size() && gaps.size() <= mostGaps; ++old) {
        if (next < shorter.size() && shorter[next].id == longer[old].id) {
            ++next;
            continue;
        }
        const int row = static_cast<int>(old);
        if (!gaps.empty() && gaps.back().second == row)
            ++gaps.back().second;
        else
            gaps.emplace_back(row, row + 1);
    }
    return next == shorter.size() && gaps.size() <= mostGaps;
}

/// Lets the rows that stay stand for where their files are now, and those that are about to go for nothing.
void pointToNewPlaces(std::vector<DuplicateRows::Row> &rows, const std::vector<DuplicateRows::Row> &left)
{
    size_t next = 0;
    for (DuplicateRows::Row &row : rows) {
        if (next < left.size() && left[next].id == row.id)
            row = left[next++];
        else
            row.group = nowhere;
    }
}

QString wastedText(const DuplicateFileGroup &group)
{
    return sizeText(group.wastedBytes());
}

QString summary(const DuplicateFileGroup &group)
{
    return QStringLiteral("%1 copies · %2 each · %3 wasted")
        .arg(QString::number(group.files.size()), sizeText(group.size), wastedText(group));
}

QString headTitle(const DuplicateFileGroup &group)
{
    return group.files.empty() ? QStringLiteral("Unknown") : paths::inOneLine(group.files.front().name);
}

QString badge(const DuplicateFileEntry &file)
{
    return file.keep ? QStringLiteral("KEEP") : QStringLiteral("DELETE");
}

} // namespace

DuplicateRows::DuplicateRows(const std::vector<DuplicateFileGroup> &groups, QString home, QObject *parent)
    : QAbstractListModel(parent)
    , groups_(groups)
    , home_(std::move(home))
{
}

std::vector<DuplicateRows::Row> DuplicateRows::rowsOf(const std::vector<size_t> &shown) const
{
    std::vector<Row> rows;
    for (const size_t group : shown) {
        const DuplicateFileGroup &files = groups_[group];
        rows.push_back({group, -1, files.id});
        for (size_t file = 0; file < files.files.size(); ++file)
            rows.push_back({group, static_cast<int>(file), files.files[file].id});
    }
    return rows;
}

void DuplicateRows::show(const std::vector<size_t> &shown)
{
    beginResetModel();
    rows_ = rowsOf(shown);
    endResetModel();
}

void DuplicateRows::shrink(const std::vector<size_t> &shown)
{
    std::vector<Row> rows = rowsOf(shown);
    std::vector<Gap> gaps;
    if (!findGaps(rows_, rows, gaps))
        return show(shown);
    pointToNewPlaces(rows_, rows);
    // From the end, so that the numbers of the gaps that are still to come hold.
    std::reverse(gaps.begin(), gaps.end());
    for (const auto &[first, end] : gaps) {
        beginRemoveRows({}, first, end - 1);
        rows_.erase(rows_.begin() + first, rows_.begin() + end);
        endRemoveRows();
    }
    refreshAll(); // the heads count what is left
}

/// The row of the group's head; the number of rows when the group is not shown.
int DuplicateRows::headOf(size_t group) const
{
    const auto head = std::lower_bound(rows_.begin(), rows_.end(), group,
                                       [](const Row &row, size_t wanted) { return row.group < wanted; });
    return head != rows_.end() && head->group == group ? static_cast<int>(head - rows_.begin()) : rowCount();
}

void DuplicateRows::refreshFile(size_t group, size_t file)
{
    const int row = headOf(group) + 1 + static_cast<int>(file);
    if (row < rowCount())
        emit dataChanged(index(row), index(row));
}

void DuplicateRows::refreshGroup(size_t group)
{
    const int head = headOf(group);
    if (head < rowCount())
        emit dataChanged(index(head), index(head + static_cast<int>(groups_[group].files.size())));
}

void DuplicateRows::refreshAll()
{
    if (!rows_.empty())
        emit dataChanged(index(0), index(rowCount() - 1));
}

const DuplicateRows::Row *DuplicateRows::row(int number) const
{
    if (number < 0 || number >= rowCount() || !isThere(rows_[static_cast<size_t>(number)]))
        return nullptr;
    return &rows_[static_cast<size_t>(number)];
}

int DuplicateRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant DuplicateRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = rows_[static_cast<size_t>(index.row())];
    if (!isThere(row))
        return {};
    if (role == isHeadRole)
        return row.isHead();
    if (role == isLastRole)
        return row.file + 1 == static_cast<int>(groups_[row.group].files.size());
    return row.isHead() ? headData(groups_[row.group], role) : fileData(row, role);
}

/// False for a row that is about to go, be it in the middle of a change of the groups.
bool DuplicateRows::isThere(const Row &row) const
{
    return row.group < groups_.size()
           && (row.isHead() || static_cast<size_t>(row.file) < groups_[row.group].files.size());
}

QVariant DuplicateRows::headData(const DuplicateFileGroup &group, int role) const
{
    switch (role) {
    case titleRole:
        return headTitle(group);
    case detailRole:
    case spokenRole:
        return summary(group);
    case trailingRole:
        return QStringLiteral("%1 recoverable").arg(wastedText(group));
    case keepRole:
        return true;
    case badgeRole:
    case badgeSymbolRole:
    case tipRole:
        return QString();
    default:
        return {};
    }
}

QVariant DuplicateRows::fileData(const Row &row, int role) const
{
    const DuplicateFileEntry &file = groups_[row.group].files[static_cast<size_t>(row.file)];
    switch (role) {
    case titleRole:
        return paths::inOneLine(file.name);
    case detailRole:
        return paths::inOneLine(paths::withTilde(file.path, home_));
    case trailingRole:
        return datetexts::mediumDay(file.modified);
    case keepRole:
        return file.keep;
    case badgeRole:
        return badge(file);
    case badgeSymbolRole:
        return file.keep ? QStringLiteral("checkmark.shield.fill") : QStringLiteral("trash.fill");
    case tipRole:
        return file.keep ? QStringLiteral("Click to mark this copy for deletion")
                         : QStringLiteral("Click to keep this copy");
    case spokenRole:
        return badge(file) + QStringLiteral(", ") + paths::inOneLine(paths::withTilde(file.path, home_))
               + QStringLiteral(", ") + datetexts::mediumDay(file.modified);
    default:
        return {};
    }
}

QHash<int, QByteArray> DuplicateRows::roleNames() const
{
    return {
        {isHeadRole, "isHead"},           {titleRole, "title"}, {detailRole, "detail"},
        {trailingRole, "trailing"},       {keepRole, "isKept"}, {badgeRole, "badge"},
        {badgeSymbolRole, "badgeSymbol"}, {tipRole, "tip"},     {isLastRole, "isLast"},
        {spokenRole, "spoken"},
    };
}
