import QtQuick
import QtQuick.Templates as T
import Quillmere

// The tooltip of a control, made only when it is due.
Loader {
    id: tip

    required property Item control
    required property bool isDue
    property string text

    active: isDue && text.length > 0
    sourceComponent: T.ToolTip {
        parent: tip.control
        visible: true
        delay: 600
        text: tip.text
        x: Math.round((parent.width - width) / 2)
        y: parent.height + Theme.unit
        margins: Theme.unit * 2
        padding: Theme.unit * 2
        implicitWidth: Math.min(implicitContentWidth, 360) + leftPadding + rightPadding
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

        contentItem: BodyText {
            text: tip.text
            font.pixelSize: Theme.smallSize
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
        background: Rectangle {
            color: Theme.raised
            radius: Theme.controlRadius
            border.color: Theme.line
        }
    }
}
