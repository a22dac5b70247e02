import QtQuick
import Quillmere.Screens

// What a long list does when the keyboard comes to it: by key there is a current row at once, and the view never moves for it.
DuplicatesCase {
    name: "RowFocus"

    function initTestCase() {
        Program.watchWarnings();
        Program.window.requestActivate();
        tryCompare(Program.window, "active", true, patience);
        twins = Duplicates.makePairs(40);
        Duplicates.scanOnly([twins], 1024);
        open("Dashboard");
        open("Duplicates");
        scan();
        verify(list().count >= 100);
    }

    // The list has the keyboard by a click, no current row, and is some rows further down; the first one is cut.
    function init() {
        clearAway();
        clickOn(Program.named("screenTitle"));
        list().goToTop();
        mouseMove(list(), 60, 60);
        scanButton().forceActiveFocus(Qt.MouseFocusReason);
        list().forceActiveFocus(Qt.MouseFocusReason);
        for (let i = 0; i < 3; ++i)
            mouseWheel(list(), 60, 60, 0, -120);
        Program.settle();
        verify(list().activeFocus);
        compare(list().currentIndex, -1);
        verify(list().contentY > list().originY + list().height / 4);
        Program.forget();
    }

    function topOf(row) {
        return row.mapToItem(list(), 0, 0).y;
    }

    function test_menuThatClosesMovesNothing() {
        const place = list().contentY;
        openContextMenu(() => mouseClick(list(), 60, list().height / 2, Qt.RightButton));
        closeMenu();
        tryVerify(() => list().activeFocus, patience, "the list has the keyboard again");
        compare(list().contentY, place);
        compare(list().currentIndex, -1);
        compare(rows().filter(row => row.isCurrent).length, 0);
    }

    function test_clickOnTheSameSpotHitsTheSameRowAfterAMenu() {
        const spot = list().height / 2;
        const under = () => list().indexAt(60, list().contentY + spot);
        const row = under();
        for (let i = 0; i < 2; ++i) {
            openContextMenu(() => mouseClick(list(), 60, spot, Qt.RightButton));
            compare(list().menuRow, row);
            closeMenu();
        }
        compare(under(), row);
    }

    function test_tabMakesTheFirstRowInViewTheCurrentOne() {
        const place = list().contentY;
        press(Qt.Key_Backtab);
        verify(!list().activeFocus);
        press(Qt.Key_Tab);
        verify(list().activeFocus);
        compare(list().contentY, place);
        const current = list().currentItem;
        verify(current && current.isCurrent);
        verify(topOf(current) >= 0 && topOf(current) < current.height, `it stands at ${topOf(current)}`);
    }
}
