import QtQuick
import Quillmere

// One rectangle of a treemap.
Rectangle {
    id: tile

    required property int index
    required property string tileName
    required property string sizeText
    required property string tipText
    required property string spokenText
    required property color tileColor
    required property color labelColor
    required property double tileX
    required property double tileY
    required property double tileWidth
    required property double tileHeight
    required property bool hasLabel
    property bool isHovered: false

    signal pointerEntered
    signal pointerLeft
    signal tapped

    x: tileX
    y: tileY
    width: tileWidth
    height: tileHeight
    radius: Theme.tileRadius
    color: tileColor
    opacity: isHovered ? 0.8 : 1
    Accessible.role: Accessible.Button
    Accessible.name: spokenText

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
    Rectangle {
        objectName: "hoverOutline"
        anchors.fill: parent
        visible: tile.isHovered
        radius: parent.radius
        color: "transparent"
        border.width: 2
        border.color: "#80ffffff" // 0.4 of white, under the opacity of the tile
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
