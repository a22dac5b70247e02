#pragma once

#include "disk/StorageCategory.h"

#include <QRectF>

#include <vector>

/// One rectangle of a treemap.
struct TreemapItem
{
    QString name;
    double size = 0; ///< bytes
    QString color;   ///< six hexadecimal digits
    QRectF rect;
};

/// Rectangles whose areas follow the sizes, inside (0, 0, width, height), by recursive bisection: the rectangle at
/// hand is cut across its longer side where the worse of the two aspects is least bad. In order of size, largest
/// first, equal ones as they came; so the index of a rectangle is that of its category in that order. Categories of
/// size 0 have none. Coordinates are not rounded. Pure.
std::vector<TreemapItem> layoutTreemap(const std::vector<StorageCategory> &categories, double width,
                                       double height);

/// The categories in the order of the rectangles.
std::vector<StorageCategory> sortedForTreemap(std::vector<StorageCategory> categories);
