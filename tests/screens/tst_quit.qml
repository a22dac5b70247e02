import QtQuick
import Quillmere.Screens

// The ways out. The end of the process is counted here instead of made.
ScreenCase {
    name: "Quit"

    function cleanup() {
        Surroundings.releaseProbes();
        compare(Program.takeWarnings(), "");
    }

    function test_quitKeyEndsAtOnce_data() {
        return [
            { tag: "Ctrl+Q", key: Qt.Key_Q, modifiers: Qt.ControlModifier },
            { tag: "Ctrl+Shift+Q", key: Qt.Key_Q, modifiers: Qt.ControlModifier | Qt.ShiftModifier },
            { tag: "Ctrl+Q with Caps Lock", key: "Q", modifiers: Qt.ControlModifier },
        ];
    }

    function test_quitKeyEndsAtOnce(row) {
        keyPress(row.key, row.modifiers);
        verify(Program.exits() > 0);
        keyRelease(row.key, row.modifiers);
    }

    function test_plainQEndsNothing() {
        keyClick(Qt.Key_Q);
        keyClick(Qt.Key_Q, Qt.ShiftModifier);
        compare(Program.exits(), 0);
    }

    function test_quitKeyEndsAtOnceDuringScan() {
        Surroundings.holdProbes();
        Surroundings.pass(301); // older than what a screen would take for fresh
        open("Disk Analyzer");
        tryVerify(() => Disk.probeCount() === 1, patience, "a probe is at work");
        keyPress(Qt.Key_Q, Qt.ControlModifier);
        verify(Program.exits() > 0);
        keyRelease(Qt.Key_Q, Qt.ControlModifier);
        Surroundings.releaseProbes();
        tryVerify(() => !Disk.isScanning(), patience, "the scan ends");
    }

    function test_quitKeyEndsAtOnceWithMenuOpen() {
        openMenu("View");
        keyPress(Qt.Key_Q, Qt.ControlModifier);
        verify(Program.exits() > 0);
        keyRelease(Qt.Key_Q, Qt.ControlModifier);
        closeMenu();
    }

    function openSheet() {
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        find("Activity History");
        verify(Program.isSheetUp());
    }

    // The question of the Duplicate Finder, over a folder of equal files.
    function askToDelete() {
        open("Dashboard");
        open("Duplicates");
        if (!Program.named("trashButton")) { // else the groups of the test before are there
            Duplicates.scanOnly([Duplicates.makeTwins()], 1024);
            clickOn(Program.named("scanButton"));
        }
        tryVerify(() => Program.named("trashButton")?.enabled, patience, "there is something to delete");
        clickOn(Program.named("trashButton"));
        find("Confirm Deletion");
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
    }

    function test_quitKeyEndsAtOnceWithSheetUp() {
        openSheet();
        keyPress(Qt.Key_Q, Qt.ControlModifier);
        verify(Program.exits() > 0);
        keyRelease(Qt.Key_Q, Qt.ControlModifier);
        verify(Program.isSheetUp());
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
    }

    function test_quitKeyEndsAtOnceWithQuestionUp() {
        askToDelete();
        keyPress(Qt.Key_Q, Qt.ControlModifier);
        verify(Program.exits() > 0);
        keyRelease(Qt.Key_Q, Qt.ControlModifier);
        find("Confirm Deletion");
        press(Qt.Key_Escape);
        tryGone("Confirm Deletion");
        compare(Surroundings.recycled(), "");
    }

    function test_systemEndsAtOnce() {
        Program.systemWantsToQuit();
        compare(Program.exits(), 1);
    }

    function test_menuEndsAfterHalfASecond() {
        choose("Quillmere", "Quit Quillmere");
        compare(Program.exits(), 0);
        tryVerify(() => Program.exits() === 1, patience, "the program ends");
    }

    // Closes the window, lets `checks` look at what stands before the end comes, and brings the window back.
    function closeWindow(checks) {
        Program.window.close();
        compare(Program.exits(), 0);
        checks();
        tryVerify(() => Program.exits() === 1, patience, "the program ends");
        Program.window.show();
        Program.window.requestActivate();
        tryCompare(Program.window, "active", true, patience);
    }

    function test_windowThatClosesEndsAfterHalfASecond() {
        closeWindow(() => {});
    }

    function test_windowThatClosesMakesRoomForAnotherStartAtOnce() {
        closeWindow(() => compare(Program.lettings(), 1));
    }

    function test_windowThatClosesTakesTheSheetDown() {
        openSheet();
        closeWindow(() => verify(!Program.isSheetUp()));
        tryGone("Activity History");
    }

    function test_windowThatClosesTakesTheQuestionBack() {
        askToDelete();
        closeWindow(() => verify(!Program.textItem("Confirm Deletion")));
        tryGone("Confirm Deletion");
        compare(Surroundings.recycled(), "");
    }

    function test_windowThatClosesTakesTheFolderPanelDown() {
        Program.askForFolder("Which folder?");
        compare(Program.panelAnswers(), "");
        closeWindow(() => tryVerify(() => Program.panelAnswers() === "none", patience, "the panel is cancelled"));
    }
}
