import QtQuick
import Quillmere

// A row of controls that is one stop of the Tab key: the arrows, Home and End go from one to the next. Its delegates are
// ButtonBase that the Tab key knows only at `stop`, and where the keyboard is.
FocusScope {
    id: row

    property int stop: 0
    property bool doesWrap: false // what its width has no room for goes on in a second line
    property alias model: repeater.model
    property alias delegate: repeater.delegate
    property alias spacing: line.spacing
    readonly property alias count: repeater.count
    readonly property bool isMirrored: LayoutMirroring.enabled

    // A key asks for that one.
    signal moved(int index)

    implicitWidth: line.implicitWidth
    implicitHeight: line.implicitHeight
    Keys.onLeftPressed: goOn(isMirrored ? 1 : -1)
    Keys.onRightPressed: goOn(isMirrored ? -1 : 1)
    Keys.onUpPressed: goOn(-1)
    Keys.onDownPressed: goOn(1)
    Keys.onPressed: event => event.accepted = goToEnd(event.key)

    function canTake(index) {
        const item = repeater.itemAt(index) as ButtonBase;
        return item !== null && item.visible && item.enabled && item.focusPolicy !== Qt.NoFocus;
    }

    // To the next one in that direction that can take the keyboard; at the end it stays.
    function goOn(direction) {
        let next = stop + direction;
        while (next >= 0 && next < count && !canTake(next))
            next += direction;
        goTo(next);
    }

    function goToEnd(key) {
        if (key !== Qt.Key_Home && key !== Qt.Key_End)
            return false;
        let next = key === Qt.Key_Home ? 0 : count - 1;
        while (next >= 0 && next < count && !canTake(next))
            next += key === Qt.Key_Home ? 1 : -1;
        goTo(next);
        return true;
    }

    function goTo(index) {
        if (index < 0 || index >= count)
            return;
        moved(index);
        repeater.itemAt(Math.min(stop, count - 1)).forceActiveFocus(Qt.TabFocusReason);
    }

    Flow {
        id: line
        anchors.left: parent.left
        width: row.doesWrap ? row.width : undefined
        height: row.doesWrap ? undefined : row.height
        Repeater {
            id: repeater
        }
    }
}
