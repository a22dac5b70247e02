#include "disk/Treemap.h"

#include <algorithm>
#include <limits>
#include <span>
#include <utility>

namespace {

constexpr int deepestCut = 31;

using Items = std::span<const TreemapItem>; // their rectangles are not set yet

double sumOf(Items items)
{
    double sum = 0;
    for (const TreemapItem &item : items)
        sum += item.size;
    return sum;
}

/// The rectangle's two parts, the first with `fraction` of its longer side: its left or its upper part.
std::pair<QRectF, QRectF> cut(const QRectF &rect, double fraction)
{
    if (rect.height() <= rect.width()) {
        const double width = fraction * rect.width();
        return {{rect.x(), rect.y(), width, rect.height()},
                {rect.x() + width, rect.y(), rect.width() - width, rect.height()}};
    }
    const double height = fraction * rect.height();
    return {{rect.x(), rect.y(), rect.width(), height},
            {rect.x(), rect.y() + height, rect.width(), rect.height() - height}};
}

double aspect(const QRectF &rect)
{
    // Nothing thinner than a point counts as thinner: it could not be seen.
    return std::max(rect.width(), rect.height()) / std::max(std::min(rect.width(), rect.height()), 1.0);
}

/// How many of the items go into the first part. Ties go to the lowest number.
size_t bestSplit(Items items, const QRectF &rect, double total)
{
    size_t best = 1;
    double bestAspect = std::numeric_limits<double>::infinity();
    double sum = 0;
    for (size_t count = 1; count < items.size(); ++count) {
        sum += items[count - 1].size;
        const auto [first, second] = cut(rect, sum / total);
        const double worst = std::max(aspect(first), aspect(second));
        if (worst < bestAspect) {
            bestAspect = worst;
            best = count;
        }
    }
    return best;
}

void emitItem(TreemapItem item, const QRectF &rect, std::vector<TreemapItem> &output)
{
    item.rect = rect;
    output.push_back(std::move(item));
}

void layout(Items items, const QRectF &rect, int depth, double total, std::vector<TreemapItem> &output)
{
    if (items.empty() || !(rect.width() > 0) || !(rect.height() > 0) || !(total > 0))
        return;
    if (depth > deepestCut) {
        const QString name = items.size() == 1 ? items.front().name : QStringLiteral("Other");
        emitItem({name, total, items.front().color, {}}, rect, output);
    } else if (items.size() == 1) {
        emitItem(items.front(), rect, output);
    } else if (items.size() == 2) {
        const auto [first, second] = cut(rect, items.front().size / total);
        emitItem(items.front(), first, output);
        if (items.back().size > 0) // an item of size 0 has no rectangle, not even an empty one
            emitItem(items.back(), second, output);
    } else {
        const size_t split = bestSplit(items, rect, total);
        const Items head = items.first(split);
        const Items tail = items.subspan(split);
        const double headTotal = sumOf(head);
        const auto [first, second] = cut(rect, headTotal / total);
        layout(head, first, depth + 1, headTotal, output);
        layout(tail, second, depth + 1, sumOf(tail), output);
    }
}

} // namespace

std::vector<StorageCategory> sortedForTreemap(std::vector<StorageCategory> categories)
{
    const auto larger = [](const StorageCategory &left, const StorageCategory &right) {
        return left.size > right.size;
    };
    std::stable_sort(categories.begin(), categories.end(), larger);
    return categories;
}

std::vector<TreemapItem> layoutTreemap(const std::vector<StorageCategory> &categories, double width,
                                       double height)
{
    std::vector<TreemapItem> items;
    items.reserve(categories.size());
    for (const StorageCategory &category : sortedForTreemap(categories))
        items.push_back({category.name, static_cast<double>(category.size), category.color, {}});
    std::vector<TreemapItem> output;
    output.reserve(items.size());
    layout(items, {0, 0, width, height}, 0, sumOf(items), output);
    return output;
}
