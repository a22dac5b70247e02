import QtQuick
import QtTest
import Quillmere.Screens

// The rows of the Duplicate Finder: what a click and the context menu do with a file, and that the list stays where it is
// meanwhile.
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

    function test_headOpensItsMenuByTheRightButton() {
        const title = groups()[0];
        openContextMenu(() => mouseClick(head(title), 60, 25, Qt.RightButton));
        compare(Program.menuLines(), "Newest\nOldest");
        closeMenu();
    }

    function test_bulkButtonsThatWouldChangeNothingRest() {
        const button = text => Program.itemWith("text", screen(), text);
        verify(!button("Select All Duplicates").enabled); // as the scan has left them
        verify(button("Select None").enabled);
        click("Select None", screen());
        verify(!button("Select None").enabled && button("Select All Duplicates").enabled);
        click("Keep Newest", screen());
        verify(!button("Keep Newest").enabled && button("Keep Oldest").enabled);
        clickFile("b/photo.jpg");
        verify(button("Keep Newest").enabled);
    }
}
