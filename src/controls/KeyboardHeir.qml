import QtQuick
import Quillmere

// What had the keyboard may go or come to rest, and leaves it to its screen, on which nothing shows it. Then the heir has it.
Item {
    id: passing

    required property Item screen
    required property Item heir // as things are; null where nothing can have it

    readonly property Item next: Window.activeFocusItem === screen ? heir : null

    onNextChanged: later.restart()

    function passOn() {
        next?.forceActiveFocus(InputWatch.wasKeyLast() ? Qt.TabFocusReason : Qt.OtherFocusReason);
    }

    // What has just gone may be followed by something else that takes it.
    Timer {
        id: later
        interval: 0
        onTriggered: passing.passOn()
    }
}
