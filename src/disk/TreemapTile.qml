import QtQuick
import Quillmere

// One rectangle of a treemap. Under the pointer the rectangle lets its ground through, and its label stays as it is.
Item {
    id: tile

    required property int index
    required property string tileName
    required property string sizeText
    required property string tipText
    required property color tileColor
    required property color labelColor
    required property color groundColor
    required property double tileX
    required property double tileY
    required property double tileWidth
    required property double tileHeight
    required property bool hasLabel
    required property double hoveredOpacity
    property bool isHovered: false

    signal pointerEntered
    signal pointerLeft
    signal tapped

    x: tileX
    y: tileY
    width: tileWidth
    height: tileHeight

    Pill {
        anchors.fill: parent
        visible: tile.isHovered
        radius: Theme.tileRadius
        color: tile.groundColor
    }
    Pill {
        objectName: "tileFace"
        anchors.fill: parent
        radius: Theme.tileRadius
        color: tile.tileColor
        opacity: tile.isHovered ? tile.hoveredOpacity : 1
    }
    Pill {
        objectName: "hoverOutline"
        anchors.fill: parent
        visible: tile.isHovered
        radius: Theme.tileRadius
        borderWidth: 2
        borderColor: Theme.tileOutline
    }
    Column {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.unit * 1.5
        anchors.topMargin: tile.height < 40 ? 0 : Theme.unit * 1.5 // both lines have to fit into the lowest tile
        visible: tile.hasLabel
        BodyText {
            width: parent.width
            text: tile.tileName
            color: tile.labelColor
            font.pixelSize: Theme.smallSize
            font.weight: Font.DemiBold
        }
        BodyText {
            width: parent.width
            text: tile.sizeText
            color: tile.labelColor
            font.pixelSize: Theme.captionSize
        }
    }
    HoverHandler {
        id: pointer
        onHoveredChanged: hovered ? tile.pointerEntered() : tile.pointerLeft()
    }
    TapHandler {
        onTapped: tile.tapped()
    }
    Tip {
        control: tile
        isDue: pointer.hovered
        text: tile.tipText
    }
}
