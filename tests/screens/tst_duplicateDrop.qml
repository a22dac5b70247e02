import QtQuick
import Quillmere.Screens

// The Duplicate Finder before its first scan, and folders that are dropped on its scope panel from the desktop.
ScopeCase {
    name: "DuplicateDrop"

    function test_startsWithoutResult() {
        find("Configure scan directories above and click Start Scan", screen());
        compare(scanButton().text, "Start Scan");
        verify(scanButton().enabled);
        verify(!list() && !foot() && !progress() && !Program.named("stopButton"));
        compare(figure("Groups"), "0");
        for (const text of ["Select All Duplicates", "Select None", "Keep Newest", "Keep Oldest"])
            verify(!Program.itemWith("text", screen(), text).enabled, text);
    }

    function test_startScanHasTheKeyboardAtFirst() {
        open("Dashboard");
        press(Qt.Key_5, Qt.ControlModifier);
        compare(Program.selectedScreen(), "Duplicates");
        tryVerify(() => scanButton()?.activeFocus && scanButton().visualFocus, patience, "Start Scan has the keyboard");
        press(Qt.Key_Tab);
        verify(!scanButton().activeFocus);
    }

    function panel() {
        return Program.named("scopeDrop").parent;
    }

    readonly property string dropHere: "Drop folders here to scan them"

    function test_droppedFoldersAreAdded() {
        verify(!Program.textItem(dropHere));
        verify(Program.drag("enter", [`file://${twins}/a`], panel()));
        find(dropHere, panel());
        Program.picture("scope-drop");
        verify(Program.drag("drop", [`file://${twins}/a`, `file://${twins}/b/`, `file://${twins}/a/plain`,
                                     "https://example.com/", `file://${home}`, `file://${twins}/missing`], panel()));
        tryVerify(() => scanPaths().length === 3, patience, "the folders are added");
        // Neither files nor places elsewhere, nor what is there already.
        compare(scanPaths(), ["~", twins + "/a", twins + "/b"]);
        tryGone(dropHere);
    }

    function test_dragThatLeavesAddsNothing() {
        Program.drag("enter", [`file://${twins}/a`], panel());
        find(dropHere, panel());
        Program.drag("leave", [], panel());
        tryGone(dropHere);
        compare(scanPaths(), ["~"]);
    }

    function test_folderMayBeDroppedWhileNothingElseIsThere() {
        Duplicates.scanOnly([], usualMinSize);
        Program.drag("enter", [`file://${twins}/c`], panel());
        Program.drag("drop", [`file://${twins}/c`], panel());
        tryVerify(() => scanPaths().length === 1, patience, "the folder is added");
        verify(scanButton().enabled);
    }

    function test_screenTakesNoDropBesideThePanel() {
        verify(!Program.drag("enter", [`file://${twins}/a`], chip("all")));
        verify(!Program.textItem(dropHere));
        Program.drag("leave", [], chip("all"));
    }
}
