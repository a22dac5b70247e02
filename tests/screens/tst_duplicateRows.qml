import QtQuick
import QtTest
import Quillmere.Screens

// The rows of the Duplicate Finder: what a click, the context menu and the keyboard do with a file, and that the list stays
// where it is meanwhile.
DuplicatesCase {
    name: "DuplicateRows"

    SignalSpy {
        id: changes
        signalName: "dataChanged"
    }
    SignalSpy {
        id: resets
        signalName: "modelReset"
    }

    function watchChanges() {
        for (const spy of [changes, resets]) {
            spy.target = list().model;
            spy.clear();
        }
    }

    function test_clickFlipsItsBadgeOnly() {
        // Not all rows have room, and the list stands in the midst of them.
        Program.window.height = 800;
        Program.settle();
        list().contentY = 3 * rows()[0].height + 7;
        const before = rows();
        watchChanges();
        clickFile("b/film.mov");
        compare(file("b/film.mov").badge, "KEEP");
        compare(changes.count, 1);
        compare(resets.count, 0);
        const row = file("b/film.mov").index;
        compare(changes.signalArguments[0][0].row, row);
        compare(changes.signalArguments[0][1].row, row);
        compare(list().contentY, 3 * before[0].height + 7);
        const after = rows();
        verify(before.every(item => after.includes(item)), "the rows are the same");
        compare(going(), ["b/photo.jpg", "c/photo.png", "c/film.mov", "b/report.pdf", "b/plain.zip"].filter(
                    name => after.some(item => nameOf(item) === name)));
        compare(figure("To delete"), "5 files (1.0 MB)");
        clickFile("b/film.mov");
        compare(file("b/film.mov").badge, "DELETE");
        compare(figure("To delete"), "6 files (1.2 MB)");
    }

    function test_tooltipTellsWhatAClickDoes() {
        const kept = "Click to mark this copy for deletion";
        const doomed = "Click to keep this copy";
        mouseMove(file("a/film.mov"));
        find(kept);
        Program.picture("file-tip");
        restPointer();
        tryGone(kept);
        mouseMove(file("b/film.mov"));
        find(doomed);
        restPointer();
        tryGone(doomed);
    }

    function test_lastFileMayBeMarkedToo() {
        clickFile("a/plain");
        verify(going().includes("a/plain") && going().includes("b/plain.zip"));
        compare(footText(), "7 files marked for deletion (1.3 MB)");
    }

    function test_revealButtonRevealsAndTogglesNothing() {
        const before = going();
        const button = Program.named("revealFile", file("b/film.mov"));
        mouseMove(button);
        find("Reveal in Finder");
        clickOn(button);
        compare(Surroundings.calls(), `reveal ${path("b/film.mov")}`);
        compare(going(), before);
    }

    function test_clickOnHeadDoesNothing() {
        const before = going();
        mouseClick(head("film.mov"), 40, head("film.mov").height - 10);
        Program.settle();
        compare(going(), before);
    }

    function test_menuHasItsLines_data() {
        return [
            { tag: "kept", file: "a/photo.JPG", toggle: "Mark for Deletion" },
            { tag: "set to go", file: "b/photo.jpg", toggle: "Keep This One" },
        ];
    }

    function test_menuHasItsLines(data) {
        openFileMenu(data.file);
        compare(Program.menuLines(), "Open\nQuick Look\nReveal in Finder\nCopy Path\n-\n" + data.toggle
                + "\nKeep Only This (mark others for deletion)");
        Program.picture("file-menu");
        closeMenu();
    }

    function test_menuDoesItsThing_data() {
        return [
            { tag: "Open", calls: "open FILE" },
            { tag: "Quick Look", calls: "reveal FILE\nquick look FILE" },
            { tag: "Reveal in Finder", calls: "reveal FILE" },
            { tag: "Copy Path", clipboard: "FILE" },
        ];
    }

    function test_menuDoesItsThing(data) {
        const before = going();
        chooseForFile("b/report.pdf", data.tag);
        compare(Surroundings.calls(), (data.calls ?? "").replace(/FILE/g, path("b/report.pdf")));
        compare(Surroundings.clipboard(), (data.clipboard ?? "").replace("FILE", path("b/report.pdf")));
        compare(going(), before);
    }

    function test_menuMarksAndKeeps() {
        const others = ["b/film.mov", "c/film.mov", "b/report.pdf", "b/plain.zip"];
        chooseForFile("a/photo.JPG", "Mark for Deletion");
        compare(going(), ["a/photo.JPG", "b/photo.jpg", "c/photo.png", ...others]);
        chooseForFile("b/photo.jpg", "Keep This One");
        compare(going(), ["a/photo.JPG", "c/photo.png"].concat(others));
        chooseForFile("c/photo.png", "Keep Only This (mark others for deletion)");
        compare(going(), ["a/photo.JPG", "b/photo.jpg"].concat(others));
        openFileMenu("c/photo.png");
        verify(Program.menuLines().includes("Mark for Deletion"));
        closeMenu();
    }

    function test_keepOnlyIsNoMarkForTheNextScan() {
        chooseForFile("c/photo.png", "Keep Only This (mark others for deletion)");
        scan();
        verify(!going().includes("a/photo.JPG") && going().includes("c/photo.png"));
    }

    function test_menuAndClicksKnowTheFileUnderAFilter() {
        clickOn(chip("documents"));
        clickFile("a/report.pdf");
        chooseForFile("b/report.pdf", "Keep This One");
        compare(going(), ["a/report.pdf"]);
        chooseForFile("b/report.pdf", "Copy Path");
        compare(Surroundings.clipboard(), path("b/report.pdf"));
        clickOn(chip("all"));
        compare(going(), ["b/photo.jpg", "c/photo.png", "b/film.mov", "c/film.mov", "a/report.pdf", "b/plain.zip"]);
    }

    function current() {
        return nameOf(list().currentItem);
    }

    function test_keyboardWalksAndToggles_data() {
        return [
            { tag: "Space", key: Qt.Key_Space },
            { tag: "Return", key: Qt.Key_Return },
            { tag: "Enter", key: Qt.Key_Enter },
        ];
    }

    function test_keyboardWalksAndToggles(data) {
        const before = going();
        focusList();
        verify(list().currentItem.isCurrent);
        press(data.key);
        compare(going(), before); // the first row is a head
        press(Qt.Key_Down);
        compare(current(), "a/photo.JPG");
        press(data.key);
        compare(going(), ["a/photo.JPG"].concat(before));
        press(Qt.Key_Down);
        press(Qt.Key_Down);
        compare(current(), "c/photo.png");
        press(data.key);
        compare(going(), ["a/photo.JPG"].concat(before.filter(name => name !== "c/photo.png")));
        press(Qt.Key_Up);
        compare(current(), "b/photo.jpg");
        verify(list().activeFocus);
        Program.picture("duplicates-keyboard");
    }

    function test_clickBringsTheKeyboardToItsRow() {
        clickFile("a/film.mov");
        verify(list().activeFocus);
        compare(current(), "a/film.mov");
        press(Qt.Key_Down);
        compare(current(), "b/film.mov");
        press(Qt.Key_Space);
        verify(!going().includes("b/film.mov"));
    }

    function test_keyboardScrollsToTheCurrentRow() {
        Program.window.height = 800;
        focusList();
        for (let i = 1; i < list().count; ++i)
            press(Qt.Key_Down);
        compare(current(), "b/plain.zip");
        const bottom = () => list().currentItem.mapToItem(list(), 0, list().currentItem.height).y;
        tryVerify(() => bottom() <= list().height + 1, patience, "the whole row is on view");
        verify(list().contentY > 0);
    }

    function test_menuKeyOpensTheMenuAtItsRow() {
        focusList();
        press(Qt.Key_Down);
        press(Qt.Key_Down);
        openContextMenu(() => press(Qt.Key_Menu));
        const place = Program.itemWith("isDivider").mapToItem(list().currentItem, 0, 0);
        verify(place.x >= 0 && place.x < list().width && place.y > 0 && place.y < 3 * list().currentItem.height,
               `the menu stands at its row, not at ${place}`);
        press(Qt.Key_Down);
        press(Qt.Key_Return);
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
        compare(Surroundings.calls(), `open ${path("b/photo.jpg")}`);
        tryCompare(list(), "activeFocus", true, patience);
    }

    // The buttons of a head take no focus, or the Tab key would stop twice at each group.
    function test_menuKeyOfferedOnAHeadDoesWhatItsButtonsDo() {
        focusList();
        verify(list().currentItem.isHead);
        openContextMenu(() => press(Qt.Key_Menu));
        compare(Program.menuLines(), "Newest\nOldest");
        press(Qt.Key_Down);
        press(Qt.Key_Down);
        press(Qt.Key_Return);
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
        const byKey = going().join();
        click("Newest", head(groups()[0]));
        const newest = going().join();
        verify(newest !== byKey);
        click("Oldest", head(groups()[0]));
        compare(going().join(), byKey);
    }

    function test_listThatIsNotOnViewGetsNoKeys() {
        focusList();
        const view = list();
        Surroundings.holdDisk(path("a"));
        press(Qt.Key_R, Qt.ControlModifier);
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the scan waits");
        verify(!view.visible && !view.activeFocus);
        press(Qt.Key_Menu);
        compare(Program.menuLines(), "");
        Surroundings.releaseDisk();
        waitForScan();
        tryVerify(() => list().activeFocus, patience, "the list has the keys again");
    }

    function test_headOpensItsMenuByTheRightButton() {
        const title = groups()[0];
        openContextMenu(() => mouseClick(head(title), 60, 25, Qt.RightButton));
        compare(Program.menuLines(), "Newest\nOldest");
        closeMenu();
    }

    function test_controlsAreReachedInReadingOrder() {
        const order = [];
        Program.named("settingsButton").forceActiveFocus();
        for (let i = 0; i < 40 && focusItem() !== Program.named("trashButton"); ++i) {
            order.push(list().activeFocus ? list() : focusItem());
            press(Qt.Key_Tab);
        }
        const position = item => order.indexOf(item);
        const way = [Program.named("settingsButton"), scanButton(), Program.itemWith("text", screen(), "Add Folder"),
                     Program.itemWith("text", screen(), "Add Exclusion"), Program.named("minSizePicker"),
                     Program.named("resetScope"), chip("all"), chip("media"),
                     Program.itemWith("text", screen(), "Select All Duplicates"),
                     Program.itemWith("text", screen(), "Keep Oldest"), list()].map(position);
        verify(way.every((place, i) => place >= 0 && (i === 0 || place > way[i - 1])), way.join());
    }
}
