pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The way to what is on view, a crumb for each step. Where it is too long for its room it scrolls, its end on view. It is one
// stop of the Tab key, at its last crumb; the arrows, Home and End go along it. A long name is cut and told by its tooltip.
ListView {
    id: crumbs

    required property string label // for assistive technology
    property string textRole: "modelData"
    property bool beginsWithSign: true // a sign ahead of the first crumb as well, which something stands before

    signal chosen(int index)

    readonly property bool isMirrored: LayoutMirroring.enabled

    function goTo(index) {
        if (index < 0 || index >= count)
            return;
        currentIndex = index;
        (currentItem as Crumb).takeByKey();
    }

    function showEnd() {
        currentIndex = count - 1;
        positionViewAtEnd();
    }

    implicitHeight: Theme.controlHeight
    orientation: ListView.Horizontal
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentWidth > width
    clip: true
    spacing: Theme.unit
    keyNavigationEnabled: false
    highlightMoveDuration: 0
    currentIndex: count - 1
    onCountChanged: showEnd()
    onWidthChanged: positionViewAtEnd()
    Keys.onLeftPressed: goTo(currentIndex + (isMirrored ? 1 : -1))
    Keys.onRightPressed: goTo(currentIndex + (isMirrored ? -1 : 1))
    Keys.onPressed: event => event.accepted = goToEnd(event.key)
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    function goToEnd(key) {
        if (key === Qt.Key_Home)
            goTo(0);
        else if (key === Qt.Key_End)
            goTo(count - 1);
        return key === Qt.Key_Home || key === Qt.Key_End;
    }

    delegate: Crumb {
        required property var model

        height: crumbs.height
        room: crumbs.width
        isMirrored: crumbs.isMirrored
        hasSign: index > 0 || crumbs.beginsWithSign
        text: model[crumbs.textRole]
        isStop: ListView.isCurrentItem
        onClicked: crumbs.chosen(index)
    }
}
