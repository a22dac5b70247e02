import QtQuick
import QtQuick.Templates as T
import Quillmere

// A list of rows (ListRow): the keys that walk it and act on its rows, the right button, the place that it keeps. The view
// follows its current row at once, or a held key would run ahead of what is seen.
ListView {
    id: list

    // The scroll handle stands beside the rows, not over them: a list reaches this much further than they do.
    property int gutter: Theme.unit * 3
    readonly property real rowWidth: width - gutter

    property alias beginsByKey: hands.beginsByKey
    property int menuRow: -1 // the row whose context menu is open (RowMenu's `shownRow`)

    signal rowOpened(int row)  // by Return or Enter
    signal rowToggled(int row) // by Space
    signal menuRequested(int row, Item item) // `item` is the row where a key asks, null where the pointer does
    signal selectionExtended(int from, int to) // the current row was moved with Shift held
    signal ranOut() // the last row has gone from under somebody who uses keys

    // Makes that row the current one and brings the keyboard to it.
    function take(row) {
        goTo(row);
        forceActiveFocus();
    }

    // Makes that row the current one and shows it whole.
    function goTo(row) {
        hands.goTo(row);
    }

    // The first row that is whole in view becomes the current one, so that the view stays where it is.
    function takeFirstInView() {
        if (currentIndex >= 0 || count === 0)
            return;
        const row = Math.max(0, indexAt(contentX, contentY), indexAt(contentX, contentY + spacing));
        const isCut = row + 1 < count && itemAtIndex(row)?.y < contentY;
        currentIndex = isCut ? row + 1 : row;
    }

    // Other rows are about to come.
    function goToTop() {
        hands.goToTop();
    }

    // Whoever comes back goes on at the row that they had left by. A click is answered with no current row.
    function goOnAt(row) {
        if (InputWatch.wasKeyLast())
            goTo(row);
    }

    // Keeps the current row and the place of the view while the rows are made anew; all are as high as each other.
    // `rowNow` tells where a row of before stands.
    function holdPlace() {
        heldPlace = { row: currentIndex, top: contentY - originY, height: count > 0 ? contentHeight / count : 0 };
    }
    function takePlace(rowNow) {
        const held = heldPlace;
        currentIndex = rowNow(held.row);
        if (held.height === 0) // there were no rows
            return;
        const topRow = Math.floor(held.top / held.height);
        forceLayout();
        contentY = originY + held.top + (rowNow(topRow) - topRow) * held.height;
        returnToBounds();
    }
    property var heldPlace: null

    function walk(key, modifiers) {
        const from = currentIndex;
        const row = RowSteps.target(key, modifiers, from, count, contentHeight > 0 ? height * count / contentHeight : 1);
        if (row < 0)
            return false;
        goTo(row);
        if (modifiers & Qt.ShiftModifier)
            selectionExtended(from, row);
        return true;
    }

    clip: true
    focus: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    reuseItems: true
    cacheBuffer: 0 // or rows that nobody sees would be told of to assistive technology
    currentIndex: -1
    keyNavigationEnabled: false // its own keys know neither pages nor the ends
    highlightFollowsCurrentItem: false // a frame late, and more keys may come before; goTo is not

    // A list that is out of sight keeps the focus for its return, but takes no keys.
    Keys.enabled: visible
    Keys.onPressed: event => event.accepted = list.walk(event.key, event.modifiers) || hands.take(event.key, event.modifiers)

    Accessible.role: Accessible.List

    T.ScrollBar.vertical: ScrollHandle { }

    ViewHands {
        id: hands
        view: list
        onOpened: row => list.rowOpened(row)
        onToggled: row => list.rowToggled(row)
        onMenuRequested: (row, item) => list.menuRequested(row, item)
        onCurrentMissed: list.takeFirstInView()
        onRanOut: list.ranOut()
    }
}
