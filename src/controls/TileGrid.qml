import QtQuick
import QtQuick.Templates as T
import Quillmere

// A grid of cells: the keys that walk it and act on its cells, the right button, as a RowList has them; like that it follows its
// current cell at once. What is selected is its screen's to know and its cells' to draw; a cell that is pressed calls `take`.
GridView {
    id: grid

    readonly property int columns: Math.max(1, Math.floor(width / Math.max(1, cellWidth)))
    readonly property bool isMirrored: LayoutMirroring.enabled

    property int menuCell: -1 // the cell whose context menu is open (RowMenu's `shownRow`)

    signal cellOpened(int cell)  // by Return or Enter
    signal cellToggled(int cell) // by Space
    signal menuRequested(int cell, Item item) // `item` is the cell where a key asks, null where the pointer does
    signal selectionExtended(int from, int to) // the current cell was moved with Shift held

    // Makes that cell the current one and brings the keyboard to it.
    function take(cell) {
        goTo(cell);
        forceActiveFocus();
    }

    // Makes that cell the current one and shows it whole.
    function goTo(cell) {
        currentIndex = cell;
        forceLayout();
        positionViewAtIndex(cell, GridView.Contain);
    }

    function goToTop() {
        currentIndex = -1;
        positionViewAtBeginning();
    }

    function scrollBy(distance) {
        cancelFlick();
        contentY += distance;
        returnToBounds();
    }

    function walk(key, modifiers) {
        const from = currentIndex;
        const to = GridSteps.target(isMirrored ? GridSteps.mirrored(key) : key, modifiers, from, count, columns, height / cellHeight);
        if (to < 0)
            return false;
        goTo(to);
        if (modifiers & Qt.ShiftModifier)
            selectionExtended(from, to);
        return true;
    }

    function askForMenu(key, modifiers) {
        if (currentIndex < 0 || !RowSteps.asksForMenu(key, modifiers))
            return false;
        menuRequested(currentIndex, currentItem);
        return true;
    }

    function askForMenuAt(x, y) {
        const cell = indexAt(x + contentX, y + contentY);
        if (cell >= 0)
            menuRequested(cell, null);
    }

    function actOn(signal) {
        if (currentIndex >= 0)
            signal(currentIndex);
        return currentIndex >= 0;
    }

    clip: true
    focus: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    reuseItems: true
    cacheBuffer: 0 // or cells that nobody sees would be told of to assistive technology
    currentIndex: -1
    keyNavigationEnabled: false // its own keys know neither pages nor the ends
    highlightFollowsCurrentItem: false // a frame late, and more keys may come before; goTo is not

    // Whoever comes by key sees where they are.
    onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0

    // A grid that is out of sight keeps the focus for its return, but takes no keys.
    Keys.enabled: visible
    Keys.onReturnPressed: event => event.accepted = grid.actOn(grid.cellOpened)
    Keys.onEnterPressed: event => event.accepted = grid.actOn(grid.cellOpened)
    Keys.onSpacePressed: event => event.accepted = grid.actOn(grid.cellToggled)
    Keys.onPressed: event => event.accepted = grid.walk(event.key, event.modifiers) || grid.askForMenu(event.key, event.modifiers)

    Accessible.role: Accessible.List

    T.ScrollBar.vertical: ScrollHandle { }

    // A notch goes its way at once: as a movement it would paint the grid a dozen times. What a touchpad tells is the view's.
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse
        onWheel: event => grid.scrollBy(RowSteps.wheelDistance(event.angleDelta.y))
    }
    // One for all cells. No TapHandler: it would make a cell take the right button for a click of its own.
    MouseArea {
        parent: grid
        anchors.fill: parent
        z: 1
        acceptedButtons: Qt.RightButton
        onClicked: mouse => grid.askForMenuAt(mouse.x, mouse.y)
    }
}
