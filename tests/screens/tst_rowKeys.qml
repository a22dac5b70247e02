import QtQuick
import Quillmere.Screens

// The keys of a long list of rows, on the Duplicate Finder's.
DuplicatesCase {
    name: "RowKeys"

    readonly property int pairs: 200

    function initTestCase() {
        Program.watchWarnings();
        Program.window.requestActivate();
        tryCompare(Program.window, "active", true, patience);
        compare(Program.takeWarnings(), "");
        twins = Duplicates.makePairs(pairs);
        Duplicates.scanOnly([twins], 1024);
        open("Dashboard");
        open("Duplicates");
        scan();
        compare(list().count, 3 * pairs);
        click("Hide Settings", screen());
    }

    function init() {
        clearAway();
        list().goToTop();
        list().forceActiveFocus();
        list().currentIndex = 0;
        Program.settle();
        Program.forget();
    }

    function isInView() {
        const row = list().currentItem;
        const top = row.mapToItem(list(), 0, 0).y;
        if (top >= 0 && top + row.height <= list().height)
            return true;
        console.log(`row ${list().currentIndex} from ${top} in a view of ${list().height}, at ${list().contentY}`);
        return false;
    }

    // Keys that come while no picture is made between them.
    function hold(key, times) {
        for (let i = 0; i < times; ++i)
            keyClick(key);
    }

    function test_viewFollowsAHeldKeyAtOnce() {
        hold(Qt.Key_Down, 150);
        compare(list().currentIndex, 150);
        verify(isInView(), "down");
        hold(Qt.Key_Up, 120);
        compare(list().currentIndex, 30);
        verify(isInView(), "up");
    }

    function test_tenKeysDuringOneFrameAreTenRows() {
        hold(Qt.Key_Down, 10);
        compare(list().currentIndex, 10);
        verify(isInView());
        Program.settle();
        verify(isInView());
        verify(list().currentItem.activeFocus);
    }

    function test_spaceAfterAHeldKeyChangesTheRowInView() {
        hold(Qt.Key_Down, 100);
        const row = list().currentItem;
        verify(!row.isHead && isInView());
        const before = row.isKept;
        keyClick(Qt.Key_Space);
        compare(row.isKept, !before);
        verify(isInView());
    }

    function test_pagesGoOnByWhatIsInView() {
        const fit = Math.floor(list().height / list().currentItem.height);
        verify(fit > 4);
        press(Qt.Key_PageDown);
        compare(list().currentIndex, fit - 1);
        press(Qt.Key_PageDown);
        compare(list().currentIndex, 2 * (fit - 1));
        verify(isInView());
        press(Qt.Key_PageUp);
        compare(list().currentIndex, fit - 1);
        verify(isInView());
    }

    function test_homeAndEndGoToTheEnds() {
        press(Qt.Key_End);
        compare(list().currentIndex, 3 * pairs - 1);
        verify(isInView());
        press(Qt.Key_PageDown);
        compare(list().currentIndex, 3 * pairs - 1);
        press(Qt.Key_Home);
        compare(list().currentIndex, 0);
        verify(isInView());
        compare(list().contentY, list().originY);
    }

    function test_wheelGoesOnAtOnceAndStopsAtTheEnds() {
        const turn = angle => mouseWheel(list(), 60, 60, 0, angle);
        const top = list().contentY;
        turn(-120);
        verify(list().contentY > top && !list().moving);
        turn(120);
        turn(120);
        compare(list().contentY, top);
        press(Qt.Key_End);
        const bottom = list().contentY;
        turn(-120);
        compare(list().contentY, bottom);
        verify(list().currentIndex === 3 * pairs - 1);
    }

    function test_shiftTellsOfARange() {
        const told = [];
        const note = (from, to) => told.push(`${from}-${to}`);
        list().selectionExtended.connect(note);
        press(Qt.Key_Down);
        press(Qt.Key_Down, Qt.ShiftModifier);
        press(Qt.Key_End, Qt.ShiftModifier);
        list().selectionExtended.disconnect(note);
        compare(told, ["1-2", `2-${3 * pairs - 1}`]);
    }

    function test_otherModifiersAreNotTheLists() {
        press(Qt.Key_Down, Qt.ControlModifier);
        press(Qt.Key_End, Qt.AltModifier);
        compare(list().currentIndex, 0);
    }

    function test_currentRowHasTheFocusAndTellsItsPlace() {
        for (const key of [Qt.Key_Down, Qt.Key_End, Qt.Key_Home, Qt.Key_PageDown]) {
            press(key);
            verify(list().currentItem.activeFocus, Program.focusPath());
        }
        list().currentIndex = 2;
        compare(list().currentItem.place, `3 of ${3 * pairs}`);
    }

    function test_rowThatComesByKeyIsNeverOneOfBefore() {
        hold(Qt.Key_Down, 77);
        const seen = new Set(rows().map(row => row.index));
        compare(seen.size, rows().length);
        verify(rows().every(row => row.visible));
    }
}
