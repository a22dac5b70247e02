import QtQuick
import Quillmere

// What a row shows of one file of a preview.
Item {
    id: file

    required property string title
    required property string detail
    required property string trailing
    required property bool isTicked
    required property SmartCleanupView view

    readonly property string tip: RowTexts.lines([name.truncated ? title : "", folder.truncated ? detail : ""])

    signal ticked

    TickBox {
        id: tick
        objectName: "fileTick"
        x: Theme.unit * 9
        anchors.verticalCenter: parent.verticalCenter
        enabled: file.view.canChoose
        isTicked: file.isTicked
        label: file.title
        focusPolicy: Qt.NoFocus
        onClicked: file.ticked()
    }
    BodyText {
        id: name
        anchors.left: tick.right
        anchors.leftMargin: Theme.unit * 2.5
        anchors.right: size.left
        anchors.rightMargin: Theme.unit * 3
        y: Math.round(parent.height / 2) - height
        text: file.title
        elide: Text.ElideMiddle
    }
    BodyText {
        id: folder
        anchors.left: name.left
        anchors.right: name.right
        anchors.top: name.bottom
        text: file.detail
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
        elide: Text.ElideMiddle
    }
    BodyText {
        id: size
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 3
        width: 80
        height: parent.height
        horizontalAlignment: Text.AlignRight
        text: file.trailing
    }
}
