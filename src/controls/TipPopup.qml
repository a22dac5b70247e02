import QtQuick
import QtQuick.Templates as T
import Quillmere

// What a Tip shows.
Item {
    id: holder

    readonly property Tip tip: parent as Tip

    Connections {
        target: InputWatch
        function onActed() {
            holder.tip.isSpent = true;
        }
    }

    T.ToolTip {
        id: popup

        parent: holder.tip.control
        visible: true
        delay: 600
        text: holder.tip.text
        x: Math.round((parent.width - width) / 2)
        y: parent.height + Theme.unit
        margins: Theme.unit * 2
        padding: Theme.unit * 2
        implicitWidth: Math.min(implicitContentWidth, 360) + leftPadding + rightPadding
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        closePolicy: T.Popup.NoAutoClose // and so it takes no Escape from what is below

        contentItem: BodyText {
            text: popup.text
            font.pixelSize: Theme.smallSize
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
        background: Pill {
            color: Theme.raised
            radius: Theme.controlRadius
            borderColor: Theme.line
        }
    }
}
