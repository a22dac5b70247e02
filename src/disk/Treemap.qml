pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// Draws the tiles of a treemap and hands their clicks on. Its tiles are for the pointer alone: the table beside it goes by
// key to the same folders, so that assistive technology meets one picture here.
Item {
    id: view

    required property TreemapView map

    required property string label
    required property string summary

    objectName: "treemap"
    Accessible.role: Accessible.Graphic
    Accessible.name: label
    Accessible.description: summary
    onWidthChanged: fit()
    onHeightChanged: fit()
    Screen.onDevicePixelRatioChanged: fit()
    Component.onCompleted: fit()

    function fit() {
        map.resize(width, height, Screen.devicePixelRatio);
    }

    Repeater {
        model: view.map.tiles
        TreemapTile {
            hoveredOpacity: view.map.hoveredOpacity
            isHovered: view.map.hoveredIndex === index
            onPointerEntered: view.map.hover(index)
            onPointerLeft: view.map.leave(index)
            onTapped: view.map.tap(index)
        }
    }
}
