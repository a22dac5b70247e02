import QtQuick
import Quillmere

// What a row of an open preview shows that is no file: what there is to say of the files, and the commands for them.
Item {
    id: line

    required property string title
    required property string detail
    required property string trailing
    required property string kind
    required property bool isReviewable
    required property bool isReviewed
    required property string moreText
    required property string allText
    required property SmartCleanupView view

    readonly property bool isGuide: kind === "guide"
    readonly property string tip: words.truncated ? title : ""

    signal reviewed
    signal allSelected
    signal noneSelected
    signal moreAsked
    signal allAsked

    BodyText {
        id: words
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 10
        anchors.right: commands.left
        anchors.rightMargin: Theme.unit * 3
        y: line.detail.length > 0 ? Math.round(parent.height / 2) - height : Math.round((parent.height - height) / 2)
        text: line.title
        color: line.isGuide ? Theme.text : Theme.secondText
        font.weight: line.isGuide ? Font.DemiBold : Font.Normal
        wrapMode: line.detail.length > 0 ? Text.NoWrap : Text.Wrap
        maximumLineCount: line.detail.length > 0 ? 1 : 2
    }
    BodyText {
        anchors.left: words.left
        anchors.right: words.right
        anchors.top: words.bottom
        visible: text.length > 0
        text: line.detail
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
    }
    Row {
        id: commands
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * (line.isReviewable ? 2 : 3) // a switch has room of its own beside it
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit * 2

        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            visible: text.length > 0
            text: line.trailing
            color: Theme.secondText
        }
        ToggleSwitch {
            objectName: "reviewedSwitch"
            visible: line.isReviewable
            enabled: line.view.canChoose
            isOn: line.isReviewed
            text: line.view.texts.reviewed
            focusPolicy: Qt.NoFocus
            onClicked: line.reviewed()
        }
        ActionButton {
            visible: line.isGuide
            enabled: line.view.canChoose
            text: line.view.texts.selectAll
            focusPolicy: Qt.NoFocus
            onClicked: line.allSelected()
        }
        ActionButton {
            visible: line.isGuide
            enabled: line.view.canChoose
            text: line.view.texts.selectNone
            focusPolicy: Qt.NoFocus
            onClicked: line.noneSelected()
        }
        ActionButton {
            visible: text.length > 0
            text: line.moreText
            focusPolicy: Qt.NoFocus
            onClicked: line.moreAsked()
        }
        ActionButton {
            visible: text.length > 0
            text: line.allText
            focusPolicy: Qt.NoFocus
            onClicked: line.allAsked()
        }
    }
}
