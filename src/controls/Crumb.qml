import QtQuick
import Quillmere

// One step of Breadcrumbs, behind the sign that leads to it. Where an end of it is cut off it is narrower, and takes presses in
// all of its place.
FocusScope {
    id: crumb

    required property int index
    required property bool hasSign
    required property bool isStop // of the Tab key
    required property bool isMirrored
    required property real room
    property real cutLeft: 0 // what can't be seen of its place
    property real cutRight: 0
    property alias text: button.text

    signal clicked

    // The list has given it the keyboard without a word of a key.
    function takeByKey() {
        forceActiveFocus(Qt.TabFocusReason);
        button.focusReason = Qt.TabFocusReason;
    }

    readonly property int lead: hasSign ? sign.width + Theme.unit : 0
    readonly property real longest: Math.min(button.implicitWidth, 240, room - lead) // of the button

    implicitWidth: lead + longest

    TapHandler {
        onTapped: crumb.clicked()
    }
    Symbol {
        id: sign
        anchors.left: parent.left
        anchors.leftMargin: crumb.isMirrored ? crumb.cutRight : crumb.cutLeft
        anchors.verticalCenter: parent.verticalCenter
        visible: crumb.hasSign
        name: "chevron.right"
        size: 11
        rotation: crumb.isMirrored ? 180 : 0
    }
    ActionButton {
        id: button
        anchors.left: parent.left
        anchors.leftMargin: sign.anchors.leftMargin + crumb.lead
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(0, Math.min(crumb.longest, crumb.width - crumb.cutLeft - crumb.cutRight - crumb.lead))
        focus: true
        focusPolicy: crumb.isStop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        onClicked: crumb.clicked()
    }
}
