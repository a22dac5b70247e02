import QtQuick
import Quillmere.Screens

// The disk widget at the foot of the sidebar, and the buttons below it.
ScreenCase {
    name: "DiskWidget"

    readonly property real gigabyte: 1024 * 1024 * 1024

    function refreshButton() {
        return Program.named("refreshDiskButton");
    }

    function widget() {
        return refreshButton().parent.parent.parent;
    }

    function bar() {
        return Program.itemWith("share", widget());
    }

    function waitForRefresh() {
        const spinner = Program.named("refreshDiskSpinner");
        tryCompare(spinner, "isRunning", false, patience);
    }

    // The figures alone would not tell that this refresh is over: they may have stood there before, and the next test
    // must not change the volume while it is read.
    function cleanup() {
        Surroundings.setVolume(500 * gigabyte, 200 * gigabyte, "Disk");
        clickOn(refreshButton());
        waitForRefresh();
        find("300 GB used", widget());
        compare(Program.takeWarnings(), "");
    }

    function test_tellsTheVolume() {
        compare(Program.texts(widget()), "Disk\n300 GB used\n200 GB free");
        compare(bar().share, 0.6);
        compare(String(bar().fill), "#58a6ff");
    }

    function test_clickRefreshes() {
        Surroundings.setVolume(500 * gigabyte, 25 * gigabyte, "Fuller");
        clickOn(refreshButton());
        verify(told(Program.named("refreshDiskSpinner"), "isRunning"));
        find("475 GB used", widget());
        compare(Program.texts(widget()), "Fuller\n475 GB used\n25 GB free");
        verify(!told(Program.named("refreshDiskSpinner"), "isRunning"));
        compare(String(bar().fill), "#f85149");
    }

    function test_keyboardRefreshes() {
        Surroundings.setVolume(500 * gigabyte, 100 * gigabyte, "Disk");
        tabTo("the refresh button", item => item === refreshButton());
        press(Qt.Key_Return);
        find("400 GB used", widget());
    }

    function test_barTurnsRedOnlyAbove85Percent() {
        Surroundings.setVolume(1000, 150, "Disk");
        clickOn(refreshButton());
        find("850 B used", widget());
        compare(String(bar().fill), "#58a6ff");
        Surroundings.setVolume(1000, 149, "Disk");
        clickOn(refreshButton());
        find("851 B used", widget());
        compare(String(bar().fill), "#f85149");
    }

    function test_volumeThatCannotBeAskedIsUnknown() {
        Surroundings.loseVolume();
        clickOn(refreshButton());
        find("Unknown", widget());
        compare(Program.texts(widget()), "Unknown\n0 B used\n0 B free");
        compare(bar().share, 0);
    }

    function test_refreshButtonTellsWhatItDoes() {
        mouseMove(refreshButton());
        find("Refresh disk usage");
        restPointer();
        tryGone("Refresh disk usage");
    }

    function test_sheetButtonsAreDisabled_data() {
        return [{ tag: "Settings" }, { tag: "Keyboard Shortcuts" }];
    }

    function test_sheetButtonsAreDisabled(row) {
        const button = Program.itemWith("label", null, row.tag);
        verify(button);
        verify(!button.enabled);
        clickOn(button);
        verify(!Program.isSheetUp());
    }

    function test_historyButtonOpensItsSheet() {
        clickOn(Program.itemWith("label", null, "Activity History"));
        verify(Program.isSheetUp());
        find("Activity History");
        Program.picture("history");
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
        tryGone("Activity History");
    }

    function test_refreshCommandRefreshes() {
        open("Organizer");
        Program.forget();
        Surroundings.setVolume(500 * gigabyte, 300 * gigabyte, "Disk");
        press(Qt.Key_R, Qt.ControlModifier);
        compare(Surroundings.posted(), "Quillmere.rescan");
        find("200 GB used", widget());
        Surroundings.setVolume(500 * gigabyte, 400 * gigabyte, "Disk");
        choose("Tools", "Refresh Current View");
        find("100 GB used", widget());
    }
}
