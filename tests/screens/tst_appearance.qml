import QtQuick
import Quillmere.Screens

// What is open follows the desktop from dark to light and back.
ScreenCase {
    name: "Appearance"

    // Of each palette, what no tile of the map has in both.
    readonly property var darkInks: ["#161b22", "#1c2128", "#30363d", "#e6edf3"]
    readonly property var lightInks: ["#f6f8fa", "#d0d7de", "#1f2328", "#59636e", "#0969da"]

    // Of these colours, those that something on view has.
    function seen(inks) {
        return inks.filter(ink => Program.itemWith("color", null, Qt.color(ink)) !== null).join(" ");
    }

    function checkBothWays() {
        compare(seen(lightInks), "");
        Surroundings.setDark(false);
        compare(seen(darkInks), "");
        verify(seen(lightInks).includes("#1f2328"));
        Surroundings.setDark(true);
        compare(seen(lightInks), "");
        verify(seen(darkInks).includes("#e6edf3"));
    }

    function test_screensFollow_data() {
        return [{ tag: "Disk Analyzer" }, { tag: "Duplicates" }];
    }

    function test_screensFollow(row) {
        open(row.tag);
        checkBothWays();
    }

    function test_openMenuFollows() {
        openMenu("View");
        checkBothWays();
        closeMenu();
    }

    function test_openSheetFollows() {
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        find("Activity History");
        checkBothWays();
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
    }

    function test_openPanelFollows() {
        Program.askForFolder("Which folder?");
        find("Which folder?");
        checkBothWays();
        press(Qt.Key_Escape);
        tryVerify(() => Program.folderAnswers() === "none", patience, "the panel is cancelled");
    }

    function test_openQuestionFollows() {
        open("Duplicates");
        Duplicates.scanOnly([Duplicates.makeTwins()], 1024);
        clickOn(Program.named("scanButton"));
        tryVerify(() => Program.named("trashButton")?.enabled, patience, "there is something to delete");
        clickOn(Program.named("trashButton"));
        find("Confirm Deletion");
        checkBothWays();
        press(Qt.Key_Escape);
        tryGone("Confirm Deletion");
    }
}
