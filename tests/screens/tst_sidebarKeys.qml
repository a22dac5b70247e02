import QtQuick
import Quillmere.Screens

// The sidebar by keyboard, and where the keyboard is once a screen has been opened.
ScreenCase {
    name: "SidebarKeys"

    readonly property var titles: ["Dashboard", "File Browser", "Search", "Disk Analyzer", "Duplicates", "Bulk Rename",
                                   "Cleanup", "Organizer", "App Manager"]

    function tabToSidebar() {
        tabTo("the sidebar", () => sidebar().activeFocus);
    }

    // The rows that carry the ring; the keyboard is on the last of them that `current` gives.
    function ringed() {
        const rows = Array.from(titles, title => Program.itemWith("itemTitle", sidebar(), title));
        return rows.filter(row => Program.named("focusRing", row)).map(row => row.itemTitle);
    }

    function verifyOn(title) {
        compare(ringed(), [title]);
        compare(told(focusItem(), "itemTitle"), title);
    }

    function verifyInScreen() {
        verify(isWithin(focusItem(), screen()), `the keyboard is in the screen, not at\n${Program.focusPath()}`);
    }

    function test_isOneStopOfTheTabKeyAtTheSelectedRow() {
        open("Cleanup");
        tabToSidebar();
        verifyOn("Cleanup");
        press(Qt.Key_Tab);
        verify(!sidebar().activeFocus, "Tab goes on");
        compare(ringed(), []);
        press(Qt.Key_Backtab, Qt.ShiftModifier);
        verifyOn("Cleanup");
        press(Qt.Key_Backtab, Qt.ShiftModifier);
        verify(!sidebar().activeFocus, "Shift+Tab goes on");
        verify(focusItem());
    }

    function test_arrowsTakeTheKeyboardAndTheRingAlong() {
        open("Cleanup");
        tabToSidebar();
        press(Qt.Key_Down);
        verifyOn("Organizer");
        press(Qt.Key_Up);
        press(Qt.Key_Up);
        verifyOn("Bulk Rename");
        press(Qt.Key_Home);
        verifyOn("Dashboard");
        press(Qt.Key_Up);
        verifyOn("Dashboard");
        press(Qt.Key_End);
        verifyOn("App Manager");
        press(Qt.Key_Down);
        verifyOn("App Manager");
        compare(Program.selectedScreen(), "Cleanup");
        Program.picture("sidebar-keyboard");
    }

    function test_comesBackToTheSelectedRow() {
        open("Cleanup");
        tabToSidebar();
        press(Qt.Key_Home);
        press(Qt.Key_Tab);
        press(Qt.Key_Backtab, Qt.ShiftModifier);
        verifyOn("Cleanup");
    }

    function test_opensEachScreen_data() {
        return Array.from(titles, title => ({ tag: title }));
    }

    function test_opensEachScreen(data) {
        open(data.tag === "Search" ? "Dashboard" : "Search");
        tabToSidebar();
        press(Qt.Key_Home);
        for (let i = 0; i < titles.indexOf(data.tag); ++i)
            press(Qt.Key_Down);
        press(Qt.Key_Return);
        compare(Program.selectedScreen(), data.tag);
        find(headOf(data.tag), screen());
        compare(ringed(), []);
        verifyInScreen();
    }

    function test_opensBy_data() {
        return [
            { tag: "Return", key: Qt.Key_Return },
            { tag: "Space", key: Qt.Key_Space },
            { tag: "the keypad's Enter", key: Qt.Key_Enter, modifiers: Qt.KeypadModifier },
        ];
    }

    function test_opensBy(data) {
        open("Cleanup");
        tabToSidebar();
        press(Qt.Key_Down);
        press(data.key, data.modifiers);
        compare(Program.selectedScreen(), "Organizer");
        verifyInScreen();
    }

    function test_openedScreenHasTheKeyboard_data() {
        return [
            { tag: "key", screen: "Disk Analyzer", open: () => press(Qt.Key_4, Qt.ControlModifier) },
            { tag: "key of a screen that is to come", screen: "Dashboard", open: () => press(Qt.Key_1, Qt.ControlModifier) },
            { tag: "menu", screen: "Duplicates", open: () => choose("View", "Duplicates") },
            { tag: "menu by key", screen: "Dashboard", open: () => { press(Qt.Key_V, Qt.AltModifier); press(Qt.Key_Return); } },
            { tag: "click", screen: "Organizer", open: () => click("Organizer", sidebar()) },
            { tag: "search pill", screen: "Search", open: () => clickOn(Program.named("searchPill")) },
            { tag: "search key", screen: "Search", open: () => press(Qt.Key_K, Qt.ControlModifier) },
        ];
    }

    function test_openedScreenHasTheKeyboard(data) {
        open("Cleanup");
        tabTo("the refresh button", item => item === Program.named("refreshDiskButton"));
        data.open();
        compare(Program.selectedScreen(), data.screen);
        verifyInScreen();
    }

    function test_screenOnViewGetsTheKeyboardByItsKey() {
        open("Disk Analyzer");
        tabToSidebar();
        press(Qt.Key_4, Qt.ControlModifier);
        compare(Program.selectedScreen(), "Disk Analyzer");
        verifyInScreen();
    }

    function test_firstScreenHasTheKeyboardAtItsClick() {
        open("Dashboard");
        verifyInScreen();
        press(Qt.Key_Tab);
        verify(!isWithin(focusItem(), screen()), "there is nothing to stop at");
    }

    function test_screenThatComesUnderASheetLeavesItTheKeyboard() {
        open("Cleanup");
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        tryVerify(() => Program.named("historyList")?.activeFocus, patience, "the sheet has the keyboard");
        Program.itemWith("itemTitle", sidebar(), "Duplicates").clicked();
        Program.settle();
        compare(Program.selectedScreen(), "Duplicates");
        verify(Program.named("historyList").activeFocus, `the sheet keeps it, and not\n${Program.focusPath()}`);
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
        verifyInScreen();
    }

    function test_sheetGivesTheKeyboardBack() {
        open("Cleanup");
        tabTo("the refresh button", item => item === Program.named("refreshDiskButton"));
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        find("Activity History");
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
        compare(focusItem(), Program.named("refreshDiskButton"));
    }

    function test_tenKeysInOneFrameOpenTheLast() {
        open("Cleanup");
        for (const key of [Qt.Key_1, Qt.Key_2, Qt.Key_3, Qt.Key_4, Qt.Key_5, Qt.Key_4, Qt.Key_3, Qt.Key_2, Qt.Key_5, Qt.Key_4])
            keyClick(key, Qt.ControlModifier);
        compare(Program.selectedScreen(), "Disk Analyzer");
        Program.settle();
        find("Disk Analyzer", screen());
        verifyInScreen();
        tryVerify(() => Program.hasAppeared(), patience, "the screen has been seen");
    }

    function test_tenKeysInOneFrameWalkTheSidebar() {
        open("Dashboard");
        tabToSidebar();
        for (let i = 0; i < 5; ++i)
            keyClick(Qt.Key_Down);
        for (let i = 0; i < 4; ++i)
            keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Return);
        compare(Program.selectedScreen(), "File Browser");
        Program.settle();
        verifyInScreen();
    }
}
