import QtQuick
import Quillmere

// The foot of a pane: its command over its whole width, below a line that says what that does where it is told.
Item {
    id: foot

    property string text
    property alias action: actionButton

    signal acted

    implicitHeight: column.height + Theme.unit * 6

    Divider {
        x: 1
        width: parent.width - 2
    }
    Column {
        id: column
        x: Theme.unit * 4
        y: Theme.unit * 3
        width: parent.width - Theme.unit * 8
        spacing: Theme.unit * 2

        BodyText {
            width: parent.width
            visible: text.length > 0
            text: foot.text
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        ActionButton {
            id: actionButton
            width: parent.width
            symbol: "trash.fill"
            isDestructive: true
            onClicked: foot.acted()
        }
    }
}
