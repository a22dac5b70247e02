import QtQuick
import Quillmere.Screens

// The Duplicate Finder's way to the Trash: the question, what is left after the run, and its entry in the log.
DuplicatesCase {
    name: "DuplicateTrash"

    function test_asksFirst() {
        askToDelete();
        find("Move 6 files (1.2 MB) to Trash? This can be undone from the Trash.");
        Program.picture("duplicates-confirm");
        clickOn(Program.named("confirmCancel"));
        tryGone("Confirm Deletion");
    }

    function test_noMeansNo_data() {
        return [
            { tag: "Cancel", how: () => clickOn(Program.named("confirmCancel")) },
            { tag: "Escape", how: () => press(Qt.Key_Escape) },
            { tag: "Return on Cancel", how: () => press(Qt.Key_Return) },
        ];
    }

    function test_noMeansNo(data) {
        askToDelete();
        data.how();
        tryGone("Confirm Deletion");
        Program.settle();
        compare(Surroundings.recycled(), "");
        compare(going(), usuallyGoing);
        compare(gone(), []);
        verify(Program.named("trashButton").enabled);
    }

    function test_movesWhatIsSetToGo() {
        moveToTrash();
        compare(Surroundings.recycled(), usuallyGoing.map(path).join("\n"));
        compare(gone(), usuallyGoing);
        // One file is left of each, which is no group any more.
        find("Configure scan directories above and click Start Scan", screen());
        compare(scanButton().text, "Start Scan");
        verify(!foot());
    }

    function test_movesByKeyboard() {
        onlyPhoto();
        tabTo("the button", item => item === Program.named("trashButton"));
        press(Qt.Key_Return);
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
        press(Qt.Key_Tab);
        verify(Program.named("confirmAction").activeFocus);
        press(Qt.Key_Return);
        tryVerify(() => gone().length === 1, patience, "the file is gone");
        compare(gone(), ["b/photo.jpg"]);
    }

    // The button rests while the files go, and its bar is gone afterwards.
    function test_theListHasTheKeyboardAfterARun() {
        onlyPhoto();
        tabTo("the button", item => item === Program.named("trashButton"));
        press(Qt.Key_Return);
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
        press(Qt.Key_Tab);
        press(Qt.Key_Return);
        tryVerify(() => gone().length === 1 && !foot(), patience, "the file is gone");
        tryVerify(() => list().activeFocus && list().currentItem?.isCurrent, patience, "a row has the keyboard");
        const row = list().currentIndex;
        press(Qt.Key_Down);
        compare(list().currentIndex, row + 1);
    }

    function test_startScanHasTheKeyboardWhereTheRunLeavesNoGroup() {
        tabTo("the button", item => item === Program.named("trashButton"));
        press(Qt.Key_Return);
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
        press(Qt.Key_Tab);
        press(Qt.Key_Return);
        tryVerify(() => !foot() && scanButton()?.enabled, patience, "the files are gone");
        tryVerify(() => scanButton().activeFocus && scanButton().visualFocus, patience, "Start Scan has the keyboard");
    }

    function test_groupOfThreeStaysAsGroupOfTwo() {
        onlyPhoto();
        moveToTrash();
        compare(fileRows().map(nameOf).filter(name => name.includes("photo")), ["a/photo.JPG", "c/photo.png"]);
        find("2 copies · 300 KB each · 300 KB wasted", head("photo.JPG"));
        compare(Array.from(["Groups", "Files", "Wasted", "To delete"], name => figure(name)), ["4", "9", "890 KB", null]);
        verify(!foot());
    }

    function test_listKeepsItsPlaceAsItShrinks() {
        Program.window.height = usualHeight;
        click("Select None", screen());
        Program.settle();
        list().contentY = 4 * rows()[0].height;
        clickFile("b/film.mov");
        const before = list().contentY;
        const stays = [file("a/film.mov"), file("c/film.mov")];
        moveToTrash();
        compare(list().contentY, before);
        compare([file("a/film.mov"), file("c/film.mov")], stays);
        find("2 copies · 120 KB each · 120 KB wasted", head("film.mov"));
    }

    function test_runTakesAlsoWhatTheFilterHides() {
        clickOn(chip("images"));
        askToDelete();
        find("Move 2 files (600 KB) to Trash? This can be undone from the Trash.");
        confirm();
        tryVerify(() => gone().length === 6, patience, "all are gone");
        compare(gone().sort(), Array.from(usuallyGoing).sort());
    }

    function test_whatCannotBeMovedStays() {
        Surroundings.refuseRecycle(path("b/report.pdf"));
        moveToTrash();
        compare(gone(), usuallyGoing.filter(name => name !== "b/report.pdf"));
        compare(groups(), ["report.pdf"]);
        compare(going(), ["b/report.pdf"]);
        verify(!Program.texts().includes("It is locked."));
        Surroundings.recycleAsEver();
        moveToTrash();
        verify(gone().includes("b/report.pdf"));
    }

    function test_markOfATrashedFileIsForgotten() {
        onlyPhoto();
        moveToTrash();
        scan();
        compare(going(), ["c/photo.png", "b/film.mov", "c/film.mov", "b/report.pdf", "b/plain.zip"]);
    }

    function openHistory() {
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        find("Activity History");
    }

    function newestEntry() {
        tryVerify(() => Program.named("historyList")?.itemAtIndex(0), patience, "there is an entry");
        return (Program.named("historyList") as ListView).itemAtIndex(0);
    }

    function closeHistory() {
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
    }

    function test_runIsRecorded_data() {
        return [
            { tag: "several", refused: "", title: "Removed 6 duplicate files", size: "1.2 MB", paths: 6 },
            { tag: "one", only: true, refused: "", title: "Removed 1 duplicate file", size: "300 KB", paths: 1 },
            { tag: "failure", refused: "b/report.pdf", title: "Removed 5 duplicates · 1 failed", size: "990 KB", paths: 5 },
        ];
    }

    function test_runIsRecorded(data) {
        if (data.only)
            onlyPhoto();
        Surroundings.refuseRecycle(path(data.refused));
        moveToTrash();
        openHistory();
        const entry = newestEntry();
        tryCompare(entry, "entryTitle", data.title, patience);
        verify(entry.headline.startsWith("Duplicates Removed · "), entry.headline);
        verify(entry.headline.endsWith(" · " + data.size), entry.headline);
        compare(entry.isFailed, data.refused !== "");
        clickOn(entry);
        find(`Files (${data.paths})`, entry);
        find(path("b/photo.jpg"), entry);
        if (data.refused)
            find(`${path(data.refused)}: It is locked.`, entry);
        Program.picture("history-duplicates-" + data.tag);
        closeHistory();
    }
}
