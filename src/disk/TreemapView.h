#pragma once

#include "base/RecordListModel.h"
#include "disk/Treemap.h"

#include <QObject>

#include <functional>

/// The state of a treemap on the screen: categories fitted into the view's size, as tiles to draw. Main thread.
class TreemapView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *tiles READ tiles CONSTANT)
    Q_PROPERTY(double hoveredOpacity MEMBER hoveredOpacity CONSTANT)
    Q_PROPERTY(int hoveredIndex READ hoveredIndex NOTIFY hoveredIndexChanged)

public:
    explicit TreemapView(QObject *parent = nullptr);

    /// Rows: tileName, sizeText, tipText, tileColor, labelColor, groundColor (what shows through the tile while the
    /// pointer is on it), tileX, tileY, tileWidth, tileHeight (points), hasLabel.
    QAbstractItemModel *tiles() { return &tiles_; }

    const double hoveredOpacity; ///< of the tile under the pointer

    void setCategories(std::vector<StorageCategory> categories);

    /// Called with the category of a clicked tile.
    std::function<void(const StorageCategory &)> onTap;

    int hoveredIndex() const { return hoveredIndex_; } ///< -1 for none

    /// In points. The tiles stand on whole pixels, of which a point has `pixelRatio`.
    Q_INVOKABLE void resize(double width, double height, double pixelRatio = 1);
    Q_INVOKABLE void hover(int index);
    Q_INVOKABLE void leave(int index);
    Q_INVOKABLE void tap(int index);

signals:
    void hoveredIndexChanged();

private:
    void layOut();
    QRectF drawn(const QRectF &rect) const;
    void setHoveredIndex(int index);

    std::vector<StorageCategory> sorted_;
    RecordListModel<TreemapItem> tiles_;
    double width_ = 0;
    double height_ = 0;
    double pixelRatio_ = 1;
    int hoveredIndex_ = -1;
};
