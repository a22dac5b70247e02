import QtQuick
import Quillmere.Screens

// What the tests of the Activity History sheet share. Each begins with an empty log and without the sheet.
ScreenCase {
    function init() {
        clearAway();
        Activity.emptyHistory();
        Program.forget();
    }

    function cleanup() {
        for (let i = 0; i < 3 && Program.isSheetUp(); ++i)
            press(Qt.Key_Escape);
        verify(!Program.isSheetUp());
        compare(Program.takeWarnings(), "");
    }

    function fill() {
        Activity.record({ kind: "organize", title: "Moved 2 files", bytes: 4096,
                         paths: ["/home/some/a.txt", "/home/some/b.txt"] });
        Activity.record({ kind: "cleanup", title: "Cleaned nothing" });
        Activity.record({ kind: "cleanup", title: "Cleaned some", bytes: 2048, paths: ["/home/some/cache"], isFailed: true,
                         detail: "/home/some/locked: It is locked." });
    }

    function openSheet() {
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        find("Activity History");
        tryVerify(() => list(), patience, "the sheet is up");
        Program.settle();
    }

    function list() {
        return Program.named("historyList");
    }

    function sheet() {
        return Program.named("sheetClose").parent.parent;
    }

    function rows() {
        Program.settle();
        const made = [];
        for (let i = 0; i < list().count; ++i)
            made.push(list().itemAtIndex(i));
        return made;
    }

    function titles() {
        return rows().map(row => row.entryTitle);
    }

    function row(title) {
        const found = rows().find(candidate => candidate.entryTitle === title);
        verify(found, `there is an entry ${title}`);
        return found;
    }

    function chip(label) {
        return Program.itemWith("label", sheet(), label);
    }

    function summary() {
        Program.settle();
        return told(Program.named("sheetSummary"), "text");
    }
}
