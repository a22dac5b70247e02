import QtQuick
import Quillmere

// What a RowList and a TileGrid have in common: how wheel, right button and keys act on what they show, and when the keyboard
// asks for something current. It lies over its view, which hands it the keys.
Item {
    id: hands

    required property ItemView view

    property bool beginsByKey: true // whoever uses keys has something current at once when others have come

    signal opened(int index)  // by Return or Enter
    signal toggled(int index) // by Space
    signal menuRequested(int index, Item item) // `item` is what is shown there where a key asks, null where the pointer does
    signal currentMissed() // the keyboard has come by key, or goes on where others have come, and nothing is current
    signal ranOut()        // the last one has gone from under somebody who uses keys

    // Makes that one the current one and shows it whole, at once: a held key would run ahead of what is seen.
    function goTo(index) {
        view.currentIndex = index;
        view.forceLayout();
        view.positionViewAtIndex(index, ItemView.Contain);
    }

    // Others are about to come. What waits to be used again must not keep the keyboard.
    function goToTop() {
        if (view.currentItem)
            view.currentItem.focus = false;
        view.currentIndex = -1;
        view.positionViewAtBeginning();
        beginning.restart();
    }

    function take(key, modifiers) {
        if (view.currentIndex < 0)
            return false;
        const isOpening = key === Qt.Key_Return || key === Qt.Key_Enter;
        if (isOpening)
            opened(view.currentIndex);
        else if (key === Qt.Key_Space)
            toggled(view.currentIndex);
        else if (RowSteps.asksForMenu(key, modifiers))
            menuRequested(view.currentIndex, view.currentItem);
        else
            return false;
        return true;
    }

    function scrollBy(distance) {
        view.cancelFlick();
        view.contentY += distance;
        view.returnToBounds();
    }

    // Where things have changed under the keyboard.
    function beginByKey() {
        if (!view.activeFocus || !beginsByKey || !InputWatch.wasKeyLast())
            return;
        view.forceLayout();
        if (view.count === 0)
            ranOut();
        else
            askForCurrent();
    }

    function askForCurrent() {
        if (view.currentIndex < 0 && view.count > 0)
            currentMissed();
    }

    function askForMenuAt(x, y) {
        const index = view.indexAt(x + view.contentX, y + view.contentY);
        if (index >= 0)
            menuRequested(index, null);
    }

    // Whoever comes by key sees where they are. A menu that closes gives the focus back, and changes nothing else.
    readonly property bool isFocusByKey: InputWatch.isFocusByKey
    readonly property bool hasKeyboard: view.activeFocus
    onHasKeyboardChanged: if (hasKeyboard && isFocusByKey) askForCurrent()

    readonly property int count: view.count
    onCountChanged: beginning.restart()

    // They go and come one after the other: it begins when all is done.
    Timer {
        id: beginning
        interval: 0
        onTriggered: hands.beginByKey()
    }

    parent: view
    anchors.fill: parent
    z: 1

    // A notch goes its way at once: as a movement it would paint the view a dozen times. What a touchpad tells is the view's.
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse
        onWheel: event => hands.scrollBy(RowSteps.wheelDistance(event.angleDelta.y))
    }
    // One for all that is shown. No TapHandler: it would make a row take the right button for a click of its own.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: mouse => hands.askForMenuAt(mouse.x, mouse.y)
    }
}
