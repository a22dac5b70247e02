pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// Draws the tiles of a treemap and hands their clicks on.
Item {
    id: view

    required property TreemapView map

    objectName: "treemap"
    onWidthChanged: map.resize(width, height)
    onHeightChanged: map.resize(width, height)
    Component.onCompleted: map.resize(width, height)

    Repeater {
        model: view.map.tiles
        TreemapTile {
            isHovered: view.map.hoveredIndex === index
            onPointerEntered: view.map.hover(index)
            onPointerLeft: view.map.leave(index)
            onTapped: view.map.tap(index)
        }
    }
}
