import QtQuick
import Quillmere.Screens

// The App Manager by the keyboard alone.
AppsCase {
    name: "AppKeys"

    function current() {
        Program.settle();
        return list().currentItem?.text ?? "";
    }

    function test_listIsOneStopThatTheArrowsWalk() {
        tabTo("the list", item => isWithin(item, list()));
        compare(current(), "Alpha");
        press(Qt.Key_Down);
        compare(current(), "Beta");
        press(Qt.Key_Space);
        verify(isTicked("Beta"));
        press(Qt.Key_Space);
        verify(!isTicked("Beta"));
        press(Qt.Key_Return);
        find("Uninstall Beta", screen());
        press(Qt.Key_End);
        compare(current(), "Gamma");
        press(Qt.Key_Menu);
        tryVerify(() => Program.menuLines() !== "", patience, "the menu opens");
        compare(lit(), "Open App");
        closeMenu();
        press(Qt.Key_Tab);
        verify(!isWithin(focusItem(), list()));
    }

    function test_tabsAreChosenByArrows() {
        tabTo("the tabs", item => item.text === "Installed" && item.toldRole === Accessible.PageTab);
        press(Qt.Key_Right);
        waitUntilIdle();
        compare(names(), ["Tool", "Beta"]);
        press(Qt.Key_Left);
        compare(names(), ["Alpha", "Beta", "Gamma"]);
    }

    function test_applicationIsUninstalledByKeys() {
        tabTo("the list", item => isWithin(item, list()));
        press(Qt.Key_Return);
        tabTo("the button", item => item === Program.named("uninstallButton"));
        press(Qt.Key_Return);
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
        const files = Program.named("sheetFiles");
        tabTo("the files", item => isWithin(item, files));
        press(Qt.Key_Space);
        verify(!told(rowsOf(files)[0], "isTicked"));
        tabTo("the command", item => item === Program.named("confirmAction"));
        press(Qt.Key_Return);
        waitUntilIdle();
        tryCompare(list(), "count", 2, patience);
        verify(Surroundings.exists(at("home/Library/Caches/net.first.alpha")));
        tryVerify(() => isWithin(focusItem(), list()), patience, `the keyboard goes on in the list, not at ${Program.focusPath()}`);
    }

    function test_filesOfAGhostAreTickedByKeys() {
        openGhosts();
        tabTo("the list", item => isWithin(item, list()));
        press(Qt.Key_Return);
        const files = Program.named("ghostFiles");
        tabTo("the files", item => item === files || isWithin(item, files) && item !== Program.named("selectAllFiles")
              && item !== Program.named("selectNoFiles"));
        press(Qt.Key_Space);
        verify(told(Program.named("removeFilesButton"), "text").startsWith("Remove 2 files ("));
    }

    function test_menuKeyOfTheWindowRescans() {
        Surroundings.holdProbes();
        press(Qt.Key_R, Qt.ControlModifier);
        verify(Apps.isBusy());
        Surroundings.releaseProbes();
        waitUntilIdle();
    }
}
