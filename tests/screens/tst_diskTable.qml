import QtQuick
import Quillmere.Screens

// The Disk Analyzer's table: its rows, their menu and the keyboard.
AnalyzerCase {
    name: "DiskTable"

    function test_smallShareIsToldApartFromNone() {
        const fill = name => Program.named("shareFill", row(name));
        verify(row("tiny.txt").share > 0);
        compare(fill("tiny.txt").width, 2);
        verify(fill("tiny.txt").height < fill("Movies").height);
        compare(row("Empty").share, 0);
        verify(!fill("Empty"));
    }

    function test_showsRowsLargestFirst() {
        drill("Movies", 2);
        compare(Program.texts(table()), "birthday.mov\n6.0 MB\n75.0%\nclip.mp4\n2.0 MB\n25.0%");
        find("Name");
        find("Size");
        find("% of Parent");
        compare(row("birthday.mov").share, 0.75);
    }

    function test_folderRowOpensByClick() {
        click("Movies", table());
        compare(breadcrumbs(), ["Movies"]);
    }

    function test_fileRowDoesNotOpenByClick() {
        click("notes.txt", table());
        compare(breadcrumbs(), []);
        compare(Surroundings.calls(), "");
    }

    function test_parentRowGoesBack() {
        verify(!Program.named("parentRow"));
        drill("Documents", 2);
        drill("Invoices", 2);
        compare(Program.texts(Program.named("parentRow")), "..  Documents");
        clickOn(Program.named("parentRow"));
        compare(Program.texts(Program.named("parentRow")), "..  Home");
        clickOn(Program.named("parentRow"));
        compare(breadcrumbs(), []);
        tryVerify(() => !Program.named("parentRow"), patience, "there is no parent row at the top");
    }

    function test_parentRowGoesBackByKeyboard() {
        drill("Movies", 2);
        tabTo("the parent row", item => item === Program.named("parentRow"));
        verify(focusItem().visualFocus);
        press(Qt.Key_Return);
        compare(breadcrumbs(), []);
    }

    function test_revealButtonShowsOnPointerAndReveals() {
        const button = () => Program.itemWith("label", row("notes.txt"), "Reveal in Finder");
        verify(!button());
        mouseMove(row("notes.txt"));
        tryVerify(() => button() !== null, patience, "the button shows");
        mouseMove(button());
        find("Reveal in Finder");
        clickOn(button());
        compare(Surroundings.calls(), `reveal ${home}/notes.txt`);
    }

    function test_rowMenuHasItsLines_data() {
        return [
            { tag: "Movies", first: "Drill Into" },
            { tag: "notes.txt", first: "Open" },
        ];
    }

    function test_rowMenuHasItsLines(data) {
        openRowMenu(data.tag);
        compare(Program.menuLines(), `${data.first}\nReveal in Finder\nCopy Path\nOpen in Terminal\n-\nMove to Trash`);
        Program.picture("row-menu");
        closeMenu();
        compare(breadcrumbs(), []);
    }

    function test_rowMenuDoesItsThing_data() {
        return [
            { tag: "reveal a folder", row: "Movies", line: "Reveal in Finder", call: "reveal HOME/Movies" },
            { tag: "terminal in a folder", row: "Movies", line: "Open in Terminal", call: "terminal HOME/Movies" },
            { tag: "terminal beside a file", row: "notes.txt", line: "Open in Terminal", call: "terminal HOME" },
            { tag: "open a file", row: "notes.txt", line: "Open", call: "open HOME/notes.txt" },
            { tag: "copy a path", row: "notes.txt", line: "Copy Path", clipboard: "HOME/notes.txt" },
            { tag: "go in", row: "Movies", line: "Drill Into", breadcrumbs: ["Movies"] },
        ];
    }

    function test_rowMenuDoesItsThing(data) {
        openRowMenu(data.row);
        chooseInContext(data.line);
        compare(Surroundings.calls(), (data.call ?? "").replace("HOME", home));
        compare(Surroundings.clipboard(), (data.clipboard ?? "").replace("HOME", home));
        compare(breadcrumbs(), data.breadcrumbs ?? []);
    }

    // The keyboard is the table's while it or its current row has it.
    function focusTable() {
        tabTo("the table", () => table().activeFocus);
        verify(table().currentItem.isCurrent);
    }

    function test_rowMenuOpensByKey() {
        focusTable();
        press(Qt.Key_Menu);
        tryVerify(() => Program.menuLines().startsWith("Drill Into"), patience, "the menu opens");
        Program.settle();
        verify(table().currentItem.isMenuTarget);
        const menu = Program.itemWith("isDivider");
        const below = menu.mapToItem(table().currentItem, 0, 0);
        verify(below.x >= 0 && below.x < table().width && below.y > 0 && below.y < 3 * table().currentItem.height,
               `the menu stands at its row, not at ${below}`);
        press(Qt.Key_Down);
        press(Qt.Key_Return);
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
        verify(!table().currentItem.isMenuTarget);
        compare(Surroundings.calls(), `reveal ${home}/Movies`);
        tryCompare(table(), "activeFocus", true, patience);
    }

    function test_keyboardWalksTheTable() {
        focusTable();
        compare(table().currentItem.entryName, "Movies");
        press(Qt.Key_Down);
        compare(table().currentItem.entryName, "Documents");
        press(Qt.Key_Return);
        compare(breadcrumbs(), ["Documents"]);
        walkTo("Invoices");
        press(Qt.Key_Right);
        find("CONTENTS (2 items)");
        tryVerify(() => breadcrumbs().length === 2, patience, "the deeper level is there");
        // The level had to be fetched; the keyboard is still the table's.
        walkTo("summary.txt");
        press(Qt.Key_Return);
        compare(Surroundings.calls(), `open ${home}/Documents/Invoices/summary.txt`);
        press(Qt.Key_Left);
        compare(breadcrumbs(), ["Documents"]);
        press(Qt.Key_Left);
        compare(breadcrumbs(), []);
        press(Qt.Key_Left);
        compare(breadcrumbs(), []);
    }

    function test_longTableScrollsToTheCurrentRow() {
        drill("Equal", 20);
        focusTable();
        for (let i = 0; i < 19; ++i)
            press(Qt.Key_Down);
        compare(table().currentIndex, 19);
        verify(table().contentHeight > table().height);
        const bottom = () => table().currentItem.mapToItem(table(), 0, table().currentItem.height).y;
        tryVerify(() => bottom() <= table().height + 1, patience, "the whole row is on view");
        Program.picture("table-scrolled");
    }

    function test_rowMenuClosesWhenItsListIsReplaced() {
        openRowMenu("notes.txt");
        Surroundings.holdProbes();
        Disk.beginScan();
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
        Surroundings.releaseProbes();
        waitForScan();
        compare(Program.menuLines(), "");
        compare(Surroundings.calls(), "");
    }

    function test_emptyFolderSaysSo() {
        click("Empty", table());
        tryVerify(() => breadcrumbs().length === 1, patience, "the folder is on view");
        find("CONTENTS (0 items)");
        find("Empty directory");
        press(Qt.Key_Left);
        compare(breadcrumbs(), []);
    }
}
