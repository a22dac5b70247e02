import QtQuick
import Quillmere.Screens

// When a tooltip goes, and when it comes again.
ScreenCase {
    name: "Tips"

    readonly property string tip: "Open Search (Ctrl+K)"

    function pill() {
        return Program.named("searchPill");
    }

    function showTip() {
        open("Organizer");
        mouseMove(pill());
        find(tip);
    }

    function isShown() {
        Program.settle();
        return Program.textItem(tip) !== null;
    }

    function test_goesAtAnyKey_data() {
        return [
            { tag: "letter", key: Qt.Key_A },
            { tag: "Shift alone", key: Qt.Key_Shift },
            { tag: "arrow", key: Qt.Key_Down },
            { tag: "Escape", key: Qt.Key_Escape },
            { tag: "Tab", key: Qt.Key_Tab },
            { tag: "key of a menu", key: Qt.Key_R, modifiers: Qt.ControlModifier },
        ];
    }

    function test_goesAtAnyKey(data) {
        showTip();
        keyPress(data.key, data.modifiers ?? Qt.NoModifier);
        verify(!isShown());
        keyRelease(data.key, data.modifiers ?? Qt.NoModifier);
        mouseMove(pill(), 20, 10);
        verify(!isShown());
    }

    function test_comesAgainWithThePointer() {
        showTip();
        press(Qt.Key_A);
        verify(!isShown());
        restPointer();
        mouseMove(pill());
        find(tip);
        restPointer();
        tryGone(tip);
    }

    function test_staysAwayAfterAClick() {
        showTip();
        mousePress(pill());
        verify(!isShown());
        mouseRelease(pill());
        compare(Program.selectedScreen(), "Search");
        const holder = Array.from(pill().children, item => item).find(item => told(item, "isDue") !== undefined);
        verify(told(holder, "isDue"), "the pointer is there");
        verify(!told(holder, "active"), "and yet no tip will come");
        restPointer();
        mouseMove(pill());
        find(tip);
        restPointer();
        tryGone(tip);
    }

    function test_takesNoEscapeFromASheet() {
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        find("Activity History");
        Activity.record({ kind: "cleanup", title: "Cleaned some" });
        tryVerify(() => Program.named("clearHistory"), patience, "there is something to clear");
        mouseMove(Program.named("clearHistory"));
        find(told(Program.named("clearHistory"), "tip"));
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down at once");
        Activity.emptyHistory();
    }
}
