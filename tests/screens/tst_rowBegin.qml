import QtQuick
import Quillmere.Screens

// A list whose rows change under the keyboard: whoever uses keys has a current row again at once, whoever clicks has none.
AnalyzerCase {
    name: "RowBegin"

    function beginByKey() {
        tabTo("the table", () => table().activeFocus);
        walkTo("Documents");
    }

    function compareBegin(name) {
        tryVerify(() => table().currentIndex === 0, patience, "the first row is the current one");
        const item = table().currentItem;
        compare(item.entryName, name);
        verify(item.isCurrent);
        verify(item.activeFocus, `the row has the keyboard, not\n${Program.focusPath()}`);
        verify(item.Accessible.description.endsWith(`1 of ${table().count}`), item.Accessible.description);
    }

    function test_goesOnAtTheFirstRowOfAnotherFolder() {
        beginByKey();
        press(Qt.Key_Right);
        compare(breadcrumbs(), ["Documents"]);
        compareBegin(table().itemAtIndex(0).entryName);
    }

    function test_comesBackToTheFolderThatWasLeft() {
        beginByKey();
        press(Qt.Key_Right);
        compare(breadcrumbs(), ["Documents"]);
        press(Qt.Key_Left);
        compare(breadcrumbs(), []);
        compare(table().currentItem?.entryName, "Documents");
        verify(table().currentItem.activeFocus);
    }

    function test_goesOnAtTheFirstRowAfterAScan() {
        beginByKey();
        press(Qt.Key_R, Qt.ControlModifier);
        waitForScan();
        compareBegin("Movies");
        press(Qt.Key_Down);
        compare(table().currentIndex, 1);
    }

    function test_aClickMakesNoRowTheCurrentOneOfAnotherFolder() {
        drill("Movies", 2);
        verify(table().activeFocus);
        compare(table().currentIndex, -1);
        verify(!table().itemAtIndex(0).activeFocus);
        clickOn(Program.named("parentRow"));
        compare(breadcrumbs(), []);
        compare(table().currentIndex, -1);
    }

    // The level has to be fetched, and comes when the list has been empty for a while.
    function test_goesOnAtTheFirstRowOfADeeperLevel() {
        beginByKey();
        press(Qt.Key_Right);
        compare(breadcrumbs(), ["Documents"]);
        walkTo("Invoices");
        press(Qt.Key_Right);
        tryVerify(() => breadcrumbs().length === 2, patience, "the deeper level is there");
        compareBegin("2026");
    }
}
