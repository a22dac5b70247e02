import QtQuick
import Quillmere.Screens

// The menu bar by keyboard: what opens a menu, what is lit in it, and what a key does there.
MenuCase {
    name: "MenuKeys"

    function test_altWithALetterOpensItsMenu_data() {
        return [
            { tag: "Quillmere", key: Qt.Key_Q, lit: "Quit Quillmere" },
            { tag: "File", key: Qt.Key_F, lit: "" },
            { tag: "Edit", key: Qt.Key_E, lit: "" },
            { tag: "View", key: Qt.Key_V, lit: "Dashboard" },
            { tag: "Tools", key: Qt.Key_T, lit: "Refresh Current View" },
            { tag: "Help", key: Qt.Key_H, lit: "Activity History…" },
        ];
    }

    function test_altWithALetterOpensItsMenu(data) {
        press(data.key, Qt.AltModifier);
        verifyOpen(data.tag);
        compare(lit(), data.lit);
        Program.picture("menu-by-key-" + data.tag);
        press(Qt.Key_Escape);
        verifyNoneOpen();
    }

    function test_lettersAreShownWhileAltIsDown() {
        verify(!Program.named("letterLine", menuBar()));
        keyPress(Qt.Key_Alt, Qt.AltModifier);
        Program.settle();
        verify(Program.named("letterLine", menuTitle("Tools")));
        Program.picture("menu-letters");
        keyRelease(Qt.Key_Alt, Qt.AltModifier);
        verify(!Program.named("letterLine", menuBar()));
        keyPress(Qt.Key_Alt, Qt.AltModifier);
        Program.setActive(false);
        Program.setActive(true);
        tryVerify(() => !Program.named("letterLine", menuBar()), patience, "a release elsewhere counts");
        keyRelease(Qt.Key_Alt, Qt.AltModifier);
    }

    function test_menuBarKeyOpensAndCloses() {
        press(Qt.Key_F10);
        verifyOpen("Quillmere");
        compare(lit(), "Quit Quillmere");
        press(Qt.Key_F10);
        verifyNoneOpen();
    }

    function test_arrowsLeadRoundTheBar_data() {
        return [
            { tag: "opened by key", open: () => press(Qt.Key_V, Qt.AltModifier) },
            { tag: "opened by click", open: () => openMenu("View") },
        ];
    }

    function test_arrowsLeadRoundTheBar(data) {
        data.open();
        for (const title of ["Tools", "Help", "Quillmere"]) {
            press(Qt.Key_Right);
            verifyOpen(title);
        }
        compare(lit(), "Quit Quillmere");
        for (const title of ["Help", "Tools"]) {
            press(Qt.Key_Left);
            verifyOpen(title);
        }
        compare(lit(), "Refresh Current View");
        press(Qt.Key_Escape);
        restPointer();
        verifyNoneOpen();
    }

    function test_arrowsPassOverWhatDoesNothing() {
        press(Qt.Key_H, Qt.AltModifier);
        for (const line of ["Report a Bug…", "Request a Feature…", "Request a Feature…"]) {
            press(Qt.Key_Down);
            compare(lit(), line);
        }
        for (const line of ["Report a Bug…", "Activity History…"]) {
            press(Qt.Key_Up);
            compare(lit(), line);
        }
        press(Qt.Key_Escape);
    }

    function test_menuOpenedByClickLightsTheLineThatAnArrowComesTo() {
        openMenu("View");
        compare(lit(), "");
        press(Qt.Key_Down);
        compare(lit(), "Dashboard");
        press(Qt.Key_Escape);
        restPointer();
        verifyNoneOpen();
    }

    function test_litLineIsChosenBy_data() {
        return [
            { tag: "Return", key: Qt.Key_Return },
            { tag: "Space", key: Qt.Key_Space },
            { tag: "the keypad's Enter", key: Qt.Key_Enter, modifiers: Qt.KeypadModifier },
        ];
    }

    function test_litLineIsChosenBy(data) {
        press(Qt.Key_V, Qt.AltModifier);
        press(Qt.Key_Down);
        press(data.key, data.modifiers);
        compare(Program.menuLines(), "");
        compare(Program.selectedScreen(), "File Browser");
    }

    function test_menuWithNothingToDoDoesNothing() {
        press(Qt.Key_F, Qt.AltModifier);
        press(Qt.Key_Down);
        press(Qt.Key_Return);
        compare(Surroundings.posted(), "");
        press(Qt.Key_Escape);
        verifyNoneOpen();
    }

    function test_tabKeyWalksAsTheArrowsDo_data() {
        return [
            { tag: "opened by key", open: () => press(Qt.Key_V, Qt.AltModifier) },
            { tag: "opened by click", open: () => { openMenu("View"); press(Qt.Key_Tab); } },
        ];
    }

    function test_tabKeyWalksAsTheArrowsDo(data) {
        data.open();
        compare(lit(), "Dashboard");
        press(Qt.Key_Tab);
        press(Qt.Key_Tab);
        compare(lit(), "Search");
        press(Qt.Key_Backtab, Qt.ShiftModifier);
        compare(lit(), "File Browser");
        press(Qt.Key_Down);
        compare(lit(), "Search");
        press(Qt.Key_Up);
        press(Qt.Key_Return);
        compare(Program.menuLines(), "");
        compare(Program.selectedScreen(), "File Browser");
    }

    function test_editMenuServesTheTextFieldByKey() {
        const field = Program.addTextField("some words");
        clickOn(field);
        tryCompare(field, "activeFocus", true);
        press(Qt.Key_F10);
        press(Qt.Key_Right);
        press(Qt.Key_Right);
        verifyOpen("Edit");
        compare(lit(), "Undo");
        for (let i = 0; i < 5; ++i)
            press(Qt.Key_Down);
        compare(lit(), "Select All");
        press(Qt.Key_Return);
        compare(told(field, "selectedText"), "some words");
        verify(field.activeFocus, Program.focusPath());
        press(Qt.Key_E, Qt.AltModifier);
        press(Qt.Key_Escape);
        verify(field.activeFocus, Program.focusPath());
        compare(told(field, "text"), "some words");
        Program.removeTextField();
    }

    function test_heldKeyDoesItOnce() {
        keyPress(Qt.Key_R, Qt.ControlModifier);
        for (let i = 0; i < 5; ++i)
            Program.repeatKey(Qt.Key_R, Qt.ControlModifier);
        keyRelease(Qt.Key_R, Qt.ControlModifier);
        compare(Surroundings.posted(), "Quillmere.rescan");
    }

    function test_heldArrowWalksOn() {
        press(Qt.Key_V, Qt.AltModifier);
        for (let i = 0; i < 3; ++i)
            Program.repeatKey(Qt.Key_Down, Qt.NoModifier);
        compare(lit(), "Disk Analyzer");
        for (let i = 0; i < 3; ++i)
            Program.repeatKey(Qt.Key_Right, Qt.NoModifier);
        verifyOpen("Quillmere");
        press(Qt.Key_Escape);
    }

    function test_tenKeysInOneFrameComeOneAfterTheOther() {
        for (const key of [Qt.Key_F10, Qt.Key_Right, Qt.Key_Right, Qt.Key_Right, Qt.Key_Down, Qt.Key_Down, Qt.Key_Up,
                           Qt.Key_Down, Qt.Key_Down, Qt.Key_Return])
            keyClick(key);
        compare(Program.selectedScreen(), "Disk Analyzer");
        Program.settle();
        verifyNoneOpen();
    }
}
