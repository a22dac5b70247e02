import QtQuick
import Quillmere.Screens

// The Activity History sheet: its ways in and out, its filters, its entries and what they hide.
HistoryCase {
    name: "History"

    readonly property var kinds: ["App Uninstalled", "Duplicates Removed", "Smart Cleanup", "Files Organized",
                                  "Ghost Files Cleaned", "Undo"]

    function test_opensAndCloses_data() {
        return [
            { tag: "key", open: () => press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier),
              close: () => press(Qt.Key_Escape) },
            { tag: "menu", open: () => choose("Help", "Activity History…"),
              close: () => clickOn(Program.named("sheetClose")) },
            { tag: "button", open: () => clickOn(Program.itemWith("label", null, "Activity History")),
              close: () => clickOn(Program.named("sheetClose")) },
        ];
    }

    function test_opensAndCloses(data) {
        data.open();
        verify(Program.isSheetUp());
        find("Activity History");
        data.close();
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
        tryGone("Activity History");
    }

    function test_emptyLogSaysSo() {
        openSheet();
        find("No activity yet.", sheet());
        compare(summary(), "0");
        verify(!Program.named("clearHistory"));
        Program.picture("history-empty");
    }

    function test_showsNewestFirst() {
        fill();
        openSheet();
        compare(titles(), ["Cleaned some", "Cleaned nothing", "Moved 2 files"]);
        compare(summary(), "3");
        verify(row("Moved 2 files").headline.startsWith("Files Organized · ")
               && row("Moved 2 files").headline.endsWith(" · 4.0 KB"), row("Moved 2 files").headline);
        verify(row("Cleaned nothing").headline.startsWith("Smart Cleanup · "));
        verify(Program.textItem("FAILED", row("Cleaned some")));
        verify(!Program.textItem("FAILED", row("Cleaned nothing")));
        Program.picture("history-entries");
    }

    function test_headingOfTheFilesStandsApartFromTheLitHead() {
        fill();
        openSheet();
        const entry = row("Moved 2 files");
        clickOn(entry);
        const heading = find("Files (2)", entry);
        const lit = Program.itemsWith("isMenuTarget", entry).find(item => item !== entry);
        verify(heading.mapToItem(entry, 0, 0).y >= lit.mapToItem(entry, 0, lit.height).y + 6);
    }

    function test_entryThatComesMeanwhileStandsAtTheTop() {
        fill();
        openSheet();
        clickOn(row("Moved 2 files"));
        Activity.record({ kind: "uninstall", title: "Uninstalled Tool" });
        tryVerify(() => list().count === 4, patience, "the entry is there");
        compare(titles()[0], "Uninstalled Tool");
        compare(summary(), "4");
        verify(row("Moved 2 files").isExpanded);
    }

    function test_filtersShowTheirKind_data() {
        return [
            { tag: "App Uninstalled", shown: [] },
            { tag: "Duplicates Removed", shown: [] },
            { tag: "Smart Cleanup", shown: ["Cleaned some", "Cleaned nothing"] },
            { tag: "Files Organized", shown: ["Moved 2 files"] },
            { tag: "Ghost Files Cleaned", shown: [] },
            { tag: "Undo", shown: [] },
        ];
    }

    function test_filtersShowTheirKind(data) {
        fill();
        openSheet();
        verify(chip("All").isSelected);
        compare(chip("All").countText, "3");
        clickOn(chip(data.tag));
        compare(titles(), data.shown);
        compare(summary(), `${data.shown.length} of 3`);
        compare(["All"].concat(kinds).filter(label => chip(label).isSelected), [data.tag]);
        compare(Program.textItem("No entries match this filter.", sheet()) !== null, data.shown.length === 0);
        clickOn(chip("All"));
        compare(titles().length, 3);
        compare(summary(), "3");
    }

    function test_filterIsChosenByKeyboard() {
        fill();
        openSheet();
        tabTo("the chips", item => item === chip("All"));
        for (let i = 0; i < 20 && focusItem() !== chip("Files Organized"); ++i)
            press(Qt.Key_Right);
        compare(focusItem(), chip("Files Organized"));
        compare(titles(), ["Moved 2 files"]);
    }

    function test_clickShowsAndHidesDetails_data() {
        return [
            { tag: "row", what: title => row(title) },
            { tag: "button", what: title => Program.named("historyToggle", row(title)) },
        ];
    }

    function test_clickShowsAndHidesDetails(data) {
        fill();
        openSheet();
        const height = row("Cleaned some").height;
        compare(told(Program.named("historyToggle", row("Cleaned some")), "label"), "Show details");
        clickOn(data.what("Cleaned some"));
        compare(Program.texts(row("Cleaned some")).split("\n").slice(-3),
                ["/home/some/locked: It is locked.", "Files (1)", "/home/some/cache"]);
        compare(told(Program.named("historyToggle", row("Cleaned some")), "label"), "Hide details");
        verify(row("Cleaned some").height > height);
        Program.picture("history-expanded");
        mouseClick(Program.named("historyToggle", row("Cleaned some")));
        Program.settle();
        compare(row("Cleaned some").height, height);
    }

    function test_entryWithNothingMoreDoesNotOpen() {
        fill();
        openSheet();
        verify(!Program.named("historyToggle", row("Cleaned nothing")));
        clickOn(row("Cleaned nothing"));
        verify(!row("Cleaned nothing").isExpanded);
    }

    function test_keyboardWalksAndOpens_data() {
        return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Space", key: Qt.Key_Space }];
    }

    function test_keyboardWalksAndOpens(data) {
        fill();
        openSheet();
        verify(list().activeFocus, `the list has the keyboard, not\n${Program.focusPath()}`);
        press(Qt.Key_Down);
        press(Qt.Key_Down);
        press(Qt.Key_Down);
        compare(list().currentItem.entryTitle, "Moved 2 files");
        press(data.key);
        find("Files (2)", list());
        press(data.key);
        tryGone("Files (2)", list());
    }

    function test_detailsOutliveAFilter() {
        fill();
        openSheet();
        clickOn(row("Moved 2 files"));
        clickOn(chip("Smart Cleanup"));
        clickOn(chip("All"));
        verify(row("Moved 2 files").isExpanded);
    }

    function test_manyPathsAreCut() {
        const paths = [];
        for (let i = 0; i < 60; ++i)
            paths.push(`/home/some/file-${i}`);
        Activity.record({ kind: "organize", title: "Moved 60 files", paths: paths });
        openSheet();
        clickOn(row("Moved 60 files"));
        find("Files (60)", list());
        list().positionViewAtEnd();
        find("… and 10 more (capped at 200 in storage)", list());
        find("/home/some/file-49", list());
        verify(!Program.textItem("/home/some/file-50", list()));
    }

    function test_keyboardStaysInTheSheet() {
        fill();
        openSheet();
        for (let i = 0; i < 20; ++i) {
            press(Qt.Key_Tab);
            let item = focusItem();
            while (item && item !== sheet())
                item = item.parent;
            verify(item, `the keyboard is in the sheet, not at\n${Program.focusPath()}`);
        }
    }
}
