import QtQuick
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

    function placeOf(row) {
        return row.mapToItem(list(), 0, 0).y;
    }

    // A head is called after the first file that is left, as "55-left.txt".
    function groupOf(head) {
        return head.title.split("-")[0];
    }

    // The row at that place of the view.
    function rowAt(y) {
        return list().itemAt(10, list().contentY + y);
    }

    function test_rowsStayWhereTheyAre() {
        const height = rows()[0].height;
        list().forceActiveFocus();
        list().currentIndex = 4 * 61 + 1;
        Program.settle();
        if (!list().currentItem.isKept)
            list().currentIndex += 1;
        list().contentY = list().originY + 4 * 60 * height + 9; // nine points into a head
        Program.settle();
        const name = nameOf(list().currentItem);
        const group = groupOf(rowAt(0));
        verify(rowAt(0).isHead);
        Program.picture("duplicates-place-before");
        moveToTrash();
        compare(list().count, 3 * triples);
        verify(rowAt(0).isHead);
        compare(groupOf(rowAt(0)), group);
        compare(placeOf(rowAt(0)), -9);
        compare(nameOf(list().currentItem), name);
        verify(placeOf(list().currentItem) > 0 && placeOf(list().currentItem) < 6 * height, "the current row is on view");
        Program.picture("duplicates-place-after");
        list().forceActiveFocus();
        const current = list().currentIndex;
        press(Qt.Key_Down);
        compare(list().currentIndex, current + 1);
    }
}
