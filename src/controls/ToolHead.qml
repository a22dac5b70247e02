import QtQuick
import Quillmere

// The head of a tool's screen: its title, the figures of its result, and the commands of the whole screen. The title stands
// at one height on every screen, whatever else the head holds.
Item {
    id: head

    required property string title
    required property string symbol
    property string subtitle // a line of its own below the title
    property alias figures: figureRow.data
    default property alias commands: commandRow.data // from left to right; their right edge is the screen's

    readonly property int lineHeight: Theme.unit * 10
    // In a narrow window the figures have a line of their own.
    readonly property bool isNarrow: figureRow.width > 0
                                     && titleRow.width + figureRow.width + commandRow.width + Theme.unit * 16 > width
    readonly property int titleEnd: subtitleText.visible ? lineHeight + subtitleText.height : lineHeight
    readonly property int figuresTop: subtitleText.visible ? titleEnd + Theme.unit * 2 : titleEnd // where they have a line

    implicitHeight: isNarrow ? figureRow.y + figureRow.height : titleEnd

    Row {
        id: titleRow
        anchors.left: parent.left
        height: head.lineHeight
        spacing: Theme.unit * 2.5
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: head.symbol
            size: 20
            color: Theme.accent
        }
        BodyText {
            objectName: "screenTitle"
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.ceil(implicitWidth), Math.floor(head.width / 2))
            text: head.title
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }
    BodyText {
        id: subtitleText
        y: head.lineHeight - (head.isNarrow ? Theme.unit : 0) // apart from the figures where these stand above it
        width: parent.width
        visible: text.length > 0
        text: head.subtitle
        color: Theme.secondText
    }
    Row {
        id: figureRow
        anchors.left: parent.left
        anchors.leftMargin: head.isNarrow ? 0 : titleRow.width + Theme.unit * 8
        y: head.isNarrow ? head.figuresTop : Math.round((head.lineHeight - height) / 2)
        spacing: Theme.unit * 6
    }
    Row {
        id: commandRow
        anchors.right: parent.right
        y: Math.round((head.lineHeight - height) / 2)
        spacing: Theme.unit * 2
    }
}
