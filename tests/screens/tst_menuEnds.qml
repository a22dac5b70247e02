import QtQuick
import Quillmere.Screens

// The menu bar by pointer, and what the end of a menu leaves behind.
MenuCase {
    name: "MenuEnds"

    function test_endOfAMenuGivesTheKeyboardBack_data() {
        return [
            { tag: "Escape after a key", open: () => press(Qt.Key_T, Qt.AltModifier), close: () => press(Qt.Key_Escape) },
            { tag: "Escape after a click", open: () => openMenu("Tools"), close: () => press(Qt.Key_Escape) },
            { tag: "Escape after a walk", open: () => { press(Qt.Key_F10); press(Qt.Key_Right); press(Qt.Key_Left); },
              close: () => press(Qt.Key_Escape) },
            { tag: "click on the title", open: () => openMenu("Tools"), close: () => click("Tools", menuBar()) },
            { tag: "click elsewhere", open: () => openMenu("Tools"), close: () => mouseClick(menuBar(), menuBar().width - 5, 5) },
            { tag: "command", open: () => press(Qt.Key_T, Qt.AltModifier), close: () => press(Qt.Key_Return) },
        ];
    }

    function test_endOfAMenuGivesTheKeyboardBack(data) {
        const button = Program.named("refreshDiskButton");
        tabTo("the refresh button", item => item === button);
        data.open();
        verify(Program.menuLines() !== "");
        verify(!button.activeFocus);
        data.close();
        Program.settle();
        compare(Program.menuLines(), "");
        compare(focusItem(), button, Program.focusPath());
        restPointer();
        verifyNoneOpen();
    }

    // A pointer that rests on the title must not make the bar go on opening menus.
    function test_titleGoesDarkAlsoBelowThePointer() {
        openMenu("Tools");
        press(Qt.Key_Escape);
        compare(Program.menuLines(), "");
        verify(!menuTitle("Tools").isShown);
        mouseMove(menuTitle("Help"));
        Program.settle();
        compare(Program.menuLines(), "");
        restPointer();
        verifyNoneOpen();
    }

    function test_pointerLeadsToTheOtherMenus() {
        mouseMove(menuTitle("File"));
        Program.settle();
        compare(Program.menuLines(), "");
        openMenu("File");
        for (const title of ["Edit", "View", "File"]) {
            mouseMove(menuTitle(title));
            verifyOpen(title);
        }
        click("Help", menuBar());
        verifyOpen("Help");
        click("Help", menuBar());
        compare(Program.menuLines(), "");
    }
}
