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
        hands.goTo(cell);
    }

    // The first cell that is whole in view becomes the current one, so that the view stays where it is.
    function takeFirstInView() {
        currentIndex = GridSteps.firstWhole(contentY - originY, cellHeight, count, columns);
    }

    // Other cells are about to come.
    function goToTop() {
        hands.goToTop();
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

    clip: true
    focus: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    reuseItems: true
    cacheBuffer: 0 // or cells that nobody sees would be told of to assistive technology
    currentIndex: -1
    keyNavigationEnabled: false // its own keys know neither pages nor the ends
    highlightFollowsCurrentItem: false // a frame late, and more keys may come before; goTo is not

    // A grid that is out of sight keeps the focus for its return, but takes no keys.
    Keys.enabled: visible
    Keys.onPressed: event => event.accepted = grid.walk(event.key, event.modifiers) || hands.take(event.key, event.modifiers)

    Accessible.role: Accessible.List

    T.ScrollBar.vertical: ScrollHandle { }

    ViewHands {
        id: hands
        view: grid
        onOpened: cell => grid.cellOpened(cell)
        onToggled: cell => grid.cellToggled(cell)
        onMenuRequested: (cell, item) => grid.menuRequested(cell, item)
        onCurrentMissed: grid.takeFirstInView()
    }
}
