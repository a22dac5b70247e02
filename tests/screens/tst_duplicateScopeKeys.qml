import QtQuick
import Quillmere.Screens

// The two lists of the Duplicate Finder's scope by keyboard: each is one stop of the Tab key, its rows are walked, changed and
// taken out from there.
ScopeCase {
    name: "DuplicateScopeKeys"

    function tabToFolders() {
        tabTo("the folders", () => scanPathList().activeFocus);
    }

    function tabToRules() {
        tabTo("the rules", () => ruleList().activeFocus);
    }

    // The row is the current one of that list, and has the keyboard.
    function compareCurrent(list, text) {
        Program.settle();
        compare(list.currentItem?.text, text);
        verify(list.currentItem.isCurrent && list.currentItem.activeFocus, Program.focusPath());
    }

    function test_eachListIsOneStop() {
        add(twins + "/a");
        exclude(home + "/Movies");
        tabTo("the button that adds a folder", item => item.text === "Add Folder");
        press(Qt.Key_Tab);
        compareCurrent(scanPathList(), "~");
        press(Qt.Key_Tab);
        compare(focusItem().text, "Add Exclusion");
        press(Qt.Key_Tab);
        compareCurrent(ruleList(), "~/Library");
        press(Qt.Key_Tab);
        compare(focusItem(), Program.named("minSizePicker"));
        press(Qt.Key_Tab);
        compare(focusItem(), Program.named("resetScope"));
    }

    function test_arrowsWalkTheRows() {
        add(twins + "/a");
        tabToFolders();
        press(Qt.Key_Down);
        compareCurrent(scanPathList(), twins + "/a");
        compare(scanPathList().currentItem.Accessible.description, "Click to change this folder, 2 of 2");
        press(Qt.Key_Home);
        compareCurrent(scanPathList(), "~");
        tabToRules();
        press(Qt.Key_End);
        compareCurrent(ruleList(), "__pycache__");
        compare(ruleList().currentItem.Accessible.description, "Built-in default — always excluded, 8 of 8");
    }

    function test_returnAndSpaceChangeTheFolder_data() {
        return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }, { tag: "Space", key: Qt.Key_Space }];
    }

    function test_returnAndSpaceChangeTheFolder(data) {
        add(twins + "/a");
        tabToFolders();
        press(Qt.Key_Down);
        Surroundings.userWillChoose(twins + "/c");
        press(data.key);
        compare(Surroundings.folderStart(), twins + "/a");
        compare(scanPaths(), ["~", twins + "/c"]);
        compareCurrent(scanPathList(), twins + "/c");
    }

    function test_deleteTakesAFolderOutAndGoesOnBesideIt() {
        for (const folder of ["a", "b"])
            add(`${twins}/${folder}`);
        tabToFolders();
        press(Qt.Key_Down);
        press(Qt.Key_Delete);
        compare(scanPaths(), ["~", twins + "/b"]);
        compareCurrent(scanPathList(), twins + "/b");
        press(Qt.Key_Backspace); // the last of them
        compare(scanPaths(), ["~"]);
        compareCurrent(scanPathList(), "~");
    }

    function test_afterTheLastFolderComesWhatAddsOne() {
        tabToFolders();
        press(Qt.Key_Delete);
        compare(scanPaths(), []);
        compare(focusItem().text, "Add Folder");
        verify(focusItem().visualFocus);
        press(Qt.Key_Tab);
        compare(focusItem().text, "Add Exclusion"); // a list without rows is no stop
        press(Qt.Key_Backtab);
        Surroundings.userWillChoose(twins + "/c");
        press(Qt.Key_Return);
        compare(scanPaths(), [twins + "/c"]);
    }

    function test_deleteTakesARuleOutButNoLock() {
        exclude(home + "/Movies");
        exclude(home + "/Music");
        tabToRules();
        press(Qt.Key_Delete);
        compare(rules().length, 10);
        compareCurrent(ruleList(), "~/Library");
        press(Qt.Key_End);
        press(Qt.Key_Up);
        press(Qt.Key_Backspace);
        compare(rules().length, 9);
        compareCurrent(ruleList(), "~/Music");
        press(Qt.Key_Delete);
        compare(rules().length, 8);
        compareCurrent(ruleList(), "__pycache__");
    }

    function test_otherCommandsOfDeleteAreNotTheLists() {
        tabToFolders();
        press(Qt.Key_Delete, Qt.ShiftModifier);
        press(Qt.Key_Backspace, Qt.ControlModifier);
        compare(scanPaths(), ["~"]);
    }

    function test_clickOnACrossLeavesTheKeyboardWhereItIs() {
        add(twins + "/a");
        scanButton().forceActiveFocus(Qt.TabFocusReason);
        clickOn(Program.named("removeScanPath", scanPathRows()[1]));
        compare(scanPaths(), ["~"]);
        verify(scanButton().activeFocus);
    }

    function test_clickOnTheCrossOfTheCurrentRowGoesOnBesideIt() {
        add(twins + "/a");
        tabToFolders();
        clickOn(Program.named("removeScanPath", scanPathRows()[0]));
        compareCurrent(scanPathList(), twins + "/a");
    }

    function test_addAndResetAreReachedByTab() {
        add(twins);
        exclude(home + "/Movies");
        tabTo("the reset button", item => item === Program.named("resetScope"));
        press(Qt.Key_Return);
        compare(scanPaths(), ["~"]);
        compare(rules().length, 8);
    }
}
