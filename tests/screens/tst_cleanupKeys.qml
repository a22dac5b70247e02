import QtQuick
import Quillmere.Screens

// Smart Cleanup by keyboard: the rows and their menus, and the way through the controls.
CleanupCase {
    name: "CleanupKeys"

    function current() {
        return list().currentItem.title;
    }

    // The keyboard is the list's, and its first row the current one.
    function focusList() {
        tabTo("the list", () => list().activeFocus);
        compare(list().currentIndex, 0);
    }

    function goTo(title) {
        for (let i = 0; i < 20 && current() !== title; ++i)
            press(Qt.Key_Down);
        compare(current(), title);
    }

    function test_spaceTicksAndReturnOpens() {
        focusList();
        press(Qt.Key_Space);
        verify(isTicked("Browser Caches"));
        press(Qt.Key_Down);
        press(Qt.Key_Return);
        tryVerify(() => titlesOf("file").length === 3, patience, "the preview is there");
        compare(current(), "Log Files");
        goTo("middle.log");
        press(Qt.Key_Space);
        verify(isTicked("middle.log") && isTicked("Log Files"));
        press(Qt.Key_Return);
        verify(!isTicked("middle.log") && !isTicked("Log Files"));
        Program.picture("cleanup-keyboard");
    }

    function test_spaceLiftsALock() {
        focusList();
        goTo("Trash");
        press(Qt.Key_Space);
        verify(!isTicked("Trash"));
        press(Qt.Key_Return);
        tryVerify(() => titlesOf("file").length === 1, patience, "the preview is there");
        press(Qt.Key_Down);
        compare(list().currentItem.kind, "note");
        press(Qt.Key_Space);
        press(Qt.Key_Up);
        press(Qt.Key_Space);
        verify(isTicked("Trash") && isTicked("thrown away"));
    }

    function test_returnShowsMoreAndTheKeyboardStandsAtTheFirstNewFile() {
        Cleanup.makeLogs(117);
        scan();
        focusList();
        goTo("Log Files");
        press(Qt.Key_Return);
        tryVerify(() => list().count === 5 + 3 + 50, patience, "the preview is there");
        press(Qt.Key_End);
        for (let i = 0; i < 5 && list().currentItem.kind !== "end"; ++i)
            press(Qt.Key_Up);
        press(Qt.Key_Return);
        compare(list().count, 5 + 3 + 120);
        compare(list().currentItem.kind, "file");
    }

    function chooseByKey(line) {
        openContextMenu(() => press(Qt.Key_Menu));
        for (let i = 0; i < line; ++i)
            press(Qt.Key_Down);
        press(Qt.Key_Return);
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
    }

    function test_menusDoWhatTheButtonsDo() {
        focusList();
        press(Qt.Key_Down);
        openContextMenu(() => press(Qt.Key_Menu));
        compare(Program.menuLines(), "Expand file preview\nReveal in Finder");
        press(Qt.Key_Return);
        tryVerify(() => titlesOf("file").length === 3, patience, "the preview is there");
        chooseByKey(1);
        compare(Surroundings.calls(), `show ${Surroundings.at("home/Library/Logs")}`);
        goTo("Select files to delete (largest first)");
        chooseByKey(0);
        verify(isTicked("big.log") && isTicked("small.log"));
        chooseByKey(1);
        verify(!isTicked("big.log"));
    }

    function test_rowsWithoutCommandsHaveNoMenu() {
        openPreview("Log Files");
        list().forceActiveFocus();
        press(Qt.Key_Home);
        goTo("Showing all 3 files, sorted by size.");
        press(Qt.Key_Menu);
        compare(Program.menuLines(), "");
    }

    function test_keyboardGoesOnWhereAScanLeavesIt() {
        tabTo("Rescan", item => item === scanButton());
        Surroundings.holdDisk(Surroundings.at("home/Downloads"));
        press(Qt.Key_Return); // and Rescan rests
        tryVerify(() => list().activeFocus, patience, `the list has it, not ${Program.focusPath()}`);
        Surroundings.releaseDisk();
        waitForScan();
        tryVerify(() => list().activeFocus && list().currentIndex === 0, patience, "at the first row of the new list");
        Cleanup.empty();
        press(Qt.Key_R, Qt.ControlModifier);
        find("Your system is clean!", screen());
        tryVerify(() => scanButton().activeFocus, patience, `Rescan has it, not ${Program.focusPath()}`);
        press(Qt.Key_Return); // nothing can have it until the scan ends
        waitForScan();
        tryVerify(() => scanButton().activeFocus, patience, `Rescan has it again, not ${Program.focusPath()}`);
    }

    function test_controlsAreReachedInReadingOrder() {
        tick("Log Files");
        const way = [Program.named("selectAllButton"), Program.named("selectNoneButton"), scanButton(), list(), cleanButton()];
        const order = [];
        way[0].forceActiveFocus();
        for (let i = 0; i < 30 && focusItem() !== cleanButton(); ++i) {
            order.push(list().activeFocus ? list() : focusItem());
            press(Qt.Key_Tab);
        }
        order.push(focusItem());
        compare(order.map(item => way.indexOf(item)), [0, 1, 2, 3, 4]);
    }
}
