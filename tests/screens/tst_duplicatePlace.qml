import QtQuick
import QtTest
import Quillmere.Screens

// The reader's place in the Duplicate Finder's list after a delete run that took files out of more than a hundred places.
DuplicatesCase {
    name: "DuplicatePlace"

    readonly property int triples: 120

    function init() {
        clearAway();
        Surroundings.userWillCancel();
        twins = Duplicates.makeTriples(triples);
        Duplicates.scanOnly([twins], 1024);
        open("Dashboard");
        open("Duplicates");
        scan();
        compare(list().count, 4 * triples);
        click("Hide Settings", screen());
        click("Keep Newest", screen());
        Program.forget();
    }

    function rowHeight() {
        return list().currentItem.height;
    }

    function placeOf(row) {
        return row.mapToItem(list(), 0, 0).y;
    }

    function test_currentRowStaysCurrentAndWhereItIs() {
        list().forceActiveFocus();
        list().currentIndex = 4 * 60 + 1;
        list().positionViewAtIndex(list().currentIndex, ListView.Center);
        Program.settle();
        if (!list().currentItem.isKept)
            list().currentIndex += 1;
        list().contentY += 7;
        Program.settle();
        const name = nameOf(list().currentItem);
        const place = placeOf(list().currentItem);
        moveToTrash();
        compare(list().count, 3 * triples);
        compare(nameOf(list().currentItem), name);
        verify(list().currentItem.isKept);
        verify(Math.abs(placeOf(list().currentItem) - place) <= 3 * rowHeight(),
               `the row stays on view: ${placeOf(list().currentItem)} was ${place}`);
        verify(list().contentY > 0);
        press(Qt.Key_Down);
        verify(list().currentIndex > 0);
    }

    function test_topRowStaysAtTheTopWithoutACurrentRow() {
        list().currentIndex = -1;
        list().contentY = list().originY + 4 * 50 * 48 + 9; // nine points into a head
        Program.settle();
        const head = list().itemAt(10, list().contentY);
        verify(head.isHead);
        const title = head.title;
        moveToTrash();
        compare(list().currentIndex, -1);
        const after = list().itemAt(10, list().contentY);
        verify(after.isHead);
        compare(after.title, title);
        compare(placeOf(after), -9);
    }
}
