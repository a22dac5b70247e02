pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The way to what is on view, a crumb for each step. Where it is too long for its room it scrolls, its end on view. A sign
// stands for those that it leaves out, and a press on it is for the nearest of them, or for the one beside it that it cuts:
// a crumb that reaches below the sign is narrowed where enough is left of it to be read, else left out. It is one stop of
// the Tab key, at its last crumb; the arrows, Home and End go along it. A long name is cut and told by its tooltip.
ListView {
    id: crumbs

    required property string label // for assistive technology
    property string textRole: "modelData"
    property bool beginsWithSign: true // a sign ahead of the first crumb as well, which something stands before

    signal chosen(int index)

    readonly property bool isMirrored: LayoutMirroring.enabled
    readonly property int signRoom: Theme.unit * 6
    readonly property int leastSeen: Theme.unit * 22 // of a crumb that is narrowed
    readonly property real leftEnd: contentX > originX + 0.5 ? contentX + signRoom : contentX
    readonly property real rightEnd: contentX + width - (contentX + width < originX + contentWidth - 0.5 ? signRoom : 0)

    function goTo(index) {
        if (index < 0 || index >= count)
            return;
        currentIndex = index;
        showCurrent();
        (currentItem as Crumb).takeByKey();
    }

    // Brings it clear of the signs, which are not there at the ends.
    function showCurrent() {
        forceLayout();
        positionViewAtIndex(currentIndex, ListView.Contain);
        contentX = Math.min(contentX, currentItem.x - signRoom);
        contentX = Math.max(contentX, currentItem.x + currentItem.width + signRoom - width);
        returnToBounds();
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
    highlightFollowsCurrentItem: false // it would go below a sign; showCurrent does not
    currentIndex: count - 1
    onCountChanged: showEnd()
    onWidthChanged: positionViewAtEnd()
    onIsMirroredChanged: positionViewAtEnd()
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

        readonly property real seen: width - cutLeft - cutRight

        height: crumbs.height
        room: crumbs.width - crumbs.signRoom * 2
        cutLeft: Math.max(0, crumbs.leftEnd - x)
        cutRight: Math.max(0, x + width - crumbs.rightEnd)
        opacity: seen >= width - 0.5 || seen >= crumbs.leastSeen ? 1 : 0
        isMirrored: crumbs.isMirrored
        hasSign: index > 0 || crumbs.beginsWithSign
        text: model[crumbs.textRole]
        isStop: ListView.isCurrentItem
        onClicked: crumbs.chosen(index)
    }

    component Sign: Symbol {
        parent: crumbs // and not what scrolls
        width: crumbs.signRoom
        height: crumbs.height
        name: "ellipsis"
        size: 13
    }
    Sign {
        visible: crumbs.leftEnd > crumbs.contentX
    }
    Sign {
        x: crumbs.width - width
        visible: crumbs.rightEnd < crumbs.contentX + crumbs.width
    }
}
