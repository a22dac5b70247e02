import QtQuick
import Quillmere
import Quillmere.Screens

// What is open follows the desktop from dark to light and back.
ScreenCase {
    name: "Appearance"

    // Of each palette, what no tile of the map has in both. Read from the theme, since a colour that has left it would
    // never be seen and its check hold whatever the program does.
    property var lightInks: []
    property var darkInks: []

    Component.onCompleted: {
        lightInks = inks(false, ["raised", "line", "text", "secondText", "accent"]);
        darkInks = inks(true, ["card", "raised", "line", "text"]);
    }

    function inks(isDark, names) {
        Theme.isDark = isDark; // the tests' own; the program's follows its desktop
        return Array.from(names, name => String(Theme[name]));
    }

    function test_inksAreThoseOfTwoPalettes() {
        compare(lightInks.filter(ink => darkInks.includes(ink)).length, 0);
        compare(darkInks.length + lightInks.length, 9);
    }

    // Of these colours, those that something on view has.
    function seen(inks) {
        return inks.filter(ink => Program.itemWith("color", null, Qt.color(ink)) !== null).join(" ");
    }

    function checkBothWays() {
        compare(seen(lightInks), "");
        Surroundings.setDark(false);
        compare(seen(darkInks), "");
        verify(seen(lightInks).includes(lightInks[2]));
        Surroundings.setDark(true);
        compare(seen(lightInks), "");
        verify(seen(darkInks).includes(darkInks[3]));
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
        tryVerify(() => Program.panelAnswers() === "none", patience, "the panel is cancelled");
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
