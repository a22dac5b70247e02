import QtQuick
import Quillmere

// One step of Breadcrumbs, behind the sign that leads to it.
FocusScope {
    id: crumb

    required property int index
    required property bool hasSign
    required property bool isStop // of the Tab key
    required property bool isMirrored
    required property real room
    property alias text: button.text

    signal clicked

    // The list has given it the keyboard without a word of a key.
    function takeByKey() {
        forceActiveFocus(Qt.TabFocusReason);
        button.focusReason = Qt.TabFocusReason;
    }

    readonly property int lead: hasSign ? sign.width + Theme.unit : 0

    implicitWidth: lead + button.width

    Symbol {
        id: sign
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        visible: crumb.hasSign
        name: "chevron.right"
        size: 11
        rotation: crumb.isMirrored ? 180 : 0
    }
    ActionButton {
        id: button
        anchors.left: parent.left
        anchors.leftMargin: crumb.lead
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, 240, crumb.room - crumb.lead)
        focus: true
        focusPolicy: crumb.isStop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        onClicked: crumb.clicked()
    }
}
