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

    function test_systemEndsAtOnce() {
        Program.systemWantsToQuit();
        compare(Program.exits(), 1);
    }

    function test_menuEndsAfterHalfASecond() {
        choose("Quillmere", "Quit Quillmere");
        compare(Program.exits(), 0);
        tryVerify(() => Program.exits() === 1, patience, "the program ends");
    }

    function test_windowThatClosesEndsAfterHalfASecond() {
        Program.window.close();
        compare(Program.exits(), 0);
        tryVerify(() => Program.exits() === 1, patience, "the program ends");
        Program.window.show();
        Program.window.requestActivate();
        tryCompare(Program.window, "active", true, patience);
    }
}
