#include "base/GroupRows.h"

#include <QHash>

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
bool findGaps(const std::vector<GroupRows::Row> &longer, const std::vector<GroupRows::Row> &shorter,
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

/// Lets the rows that stay stand for where their members are now, and those that are about to go for nothing.
void pointToNewPlaces(std::vector<GroupRows::Row> &rows, const std::vector<GroupRows::Row> &left)
{
    size_t next = 0;
    for (GroupRows::Row &row : rows) {
        if (next < left.size() && left[next].id == row.id)
            row = left[next++];
        else
            row.group = nowhere;
    }
}

/// For each of the old rows where it stands now, or the next one that stayed.
std::vector<int> placesNow(const std::vector<GroupRows::Row> &old, const std::vector<GroupRows::Row> &now)
{
    QHash<QUuid, int> numbers;
    numbers.reserve(static_cast<qsizetype>(now.size()));
    for (size_t row = 0; row < now.size(); ++row)
        numbers.insert(now[row].id, static_cast<int>(row));
    std::vector<int> places(old.size());
    int next = static_cast<int>(now.size()) - 1;
    for (size_t row = old.size(); row-- > 0;)
        places[row] = next = numbers.value(old[row].id, next);
    return places;
}

} // namespace

std::vector<GroupRows::Row> GroupRows::rowsOf(const std::vector<size_t> &shown) const
{
    std::vector<Row> rows;
    for (const size_t group : shown) {
        rows.push_back({group, -1, groupId(group)});
        const size_t members = memberCount(group);
        for (size_t member = 0; member < members; ++member)
            rows.push_back({group, static_cast<int>(member), memberId(group, member)});
    }
    return rows;
}

void GroupRows::show(const std::vector<size_t> &shown)
{
    beginResetModel();
    rows_ = rowsOf(shown);
    endResetModel();
}

void GroupRows::shrink(const std::vector<size_t> &shown)
{
    std::vector<Row> rows = rowsOf(shown);
    std::vector<Gap> gaps;
    if (!findGaps(rows_, rows, gaps))
        return takeAnew(std::move(rows));
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

void GroupRows::takeAnew(std::vector<Row> rows)
{
    rowsNow_ = placesNow(rows_, rows);
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
    emit takenAnew();
    rowsNow_ = {};
}

int GroupRows::rowNow(int before) const
{
    const auto number = static_cast<size_t>(before);
    return before >= 0 && number < rowsNow_.size() ? rowsNow_[number] : -1;
}

/// The row of the group's head; the number of rows when the group is not shown.
int GroupRows::headOf(size_t group) const
{
    const auto head = std::lower_bound(rows_.begin(), rows_.end(), group,
                                       [](const Row &row, size_t wanted) { return row.group < wanted; });
    return head != rows_.end() && head->group == group ? static_cast<int>(head - rows_.begin()) : rowCount();
}

/// The row behind the group's last one.
int GroupRows::endOf(size_t group) const
{
    const auto end = std::upper_bound(rows_.begin(), rows_.end(), group,
                                      [](size_t wanted, const Row &row) { return wanted < row.group; });
    return static_cast<int>(end - rows_.begin());
}

void GroupRows::resize(size_t group)
{
    const int first = headOf(group) + 1;
    if (first > rowCount())
        return;
    const int oldEnd = endOf(group);
    const int newEnd = first + static_cast<int>(memberCount(group));
    if (newEnd > oldEnd) {
        beginInsertRows({}, oldEnd, newEnd - 1);
        std::vector<Row> added;
        for (int row = oldEnd; row < newEnd; ++row)
            added.push_back({group, row - first, memberId(group, static_cast<size_t>(row - first))});
        rows_.insert(rows_.begin() + oldEnd, added.begin(), added.end());
        endInsertRows();
    } else if (newEnd < oldEnd) {
        beginRemoveRows({}, newEnd, oldEnd - 1);
        rows_.erase(rows_.begin() + newEnd, rows_.begin() + oldEnd);
        endRemoveRows();
    }
    refreshGroup(group);
}

void GroupRows::refreshHead(size_t group)
{
    const int head = headOf(group);
    if (head < rowCount())
        emit dataChanged(index(head), index(head));
}

void GroupRows::refreshMember(size_t group, size_t member)
{
    const int row = headOf(group) + 1 + static_cast<int>(member);
    if (row < rowCount())
        emit dataChanged(index(row), index(row));
}

void GroupRows::refreshGroup(size_t group)
{
    const int head = headOf(group);
    if (head < rowCount())
        emit dataChanged(index(head), index(head + static_cast<int>(memberCount(group))));
}

void GroupRows::refreshAll()
{
    if (!rows_.empty())
        emit dataChanged(index(0), index(rowCount() - 1));
}

const GroupRows::Row *GroupRows::row(int number) const
{
    if (number < 0 || number >= rowCount() || !isThere(rows_[static_cast<size_t>(number)]))
        return nullptr;
    return &rows_[static_cast<size_t>(number)];
}

int GroupRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant GroupRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = rows_[static_cast<size_t>(index.row())];
    if (!isThere(row))
        return {};
    if (role == isHeadRole)
        return row.isHead();
    if (role == isLastRole)
        return row.member + 1 == static_cast<int>(memberCount(row.group));
    return row.isHead() ? headData(row.group, role)
                        : memberData(row.group, static_cast<size_t>(row.member), role);
}

/// False for a row that is about to go, be it in the middle of a change of the groups.
bool GroupRows::isThere(const Row &row) const
{
    return row.group < groupCount()
           && (row.isHead() || static_cast<size_t>(row.member) < memberCount(row.group));
}

QHash<int, QByteArray> GroupRows::roleNames() const
{
    return {{isHeadRole, "isHead"}, {isLastRole, "isLast"}};
}
