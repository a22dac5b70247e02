import QtQuick
import Quillmere

// Where the keyboard of a tool's screen goes on when what had it is gone, hidden or rests: at the button that has begun a scan as
// soon as that may be pressed again, else in the list of results, else at what stops a scan or starts one.
Item {
    id: passing

    required property Item screen
    required property ScanCommands commands
    required property RowList list
    property bool isWaiting: false // rows that a moment brings: until then it stays where it is

    readonly property Item stop: commands.stopButton
    readonly property Item start: commands.startButton
    readonly property Item rows: list
    readonly property Item holder: Window.activeFocusItem
    readonly property bool isNobodys: holder === Window.contentItem // as where a dialog has gone, with Qt 6.8
    readonly property bool isOrphaned: holder === screen || isNobodys || (holder !== null && !holder.visible && isWithin(holder))
    readonly property bool hasRows: canTake(rows) && list.count > 0
    readonly property Item heir: !isOrphaned || isWaiting ? null
                               : hasBegun && canTake(start) ? start
                               : hasRows ? rows
                               : canTake(stop) ? stop
                               : canTake(start) ? start : null
    property bool hasBegun: false // the last scan, by the button that had the keyboard then

    function canTake(item) {
        return item.visible && item.enabled;
    }

    function isWithin(item) {
        while (item && item !== screen)
            item = item.parent;
        return item === screen;
    }

    function note(item) {
        if (item && item !== screen && item !== stop)
            hasBegun = item === start;
    }

    // Who uses the pointer looks elsewhere: Space, which is meant for something else, must not stop the scan. And nobody has the
    // keyboard at first, until a key asks for it.
    function passOn() {
        if (heir === null || ((heir === stop || isNobodys) && !InputWatch.wasKeyLast()))
            return;
        heir.forceActiveFocus(InputWatch.wasKeyLast() ? Qt.TabFocusReason : Qt.OtherFocusReason);
    }

    onHolderChanged: note(holder)
    onHeirChanged: later.restart()

    // Other things may be hidden and shown at the same time: it goes on when all is done.
    Timer {
        id: later
        interval: 0
        onTriggered: passing.passOn()
    }
}
