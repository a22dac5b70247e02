import QtQuick
import Quillmere.Screens

// The Disk Analyzer's map and the way in above it.
AnalyzerCase {
    name: "DiskMap"

    function test_showsTheBigChildrenAndTheRest() {
        verify(tile("Movies").width * tile("Movies").height > tile("Documents").width * tile("Documents").height);
        verify(tile("Documents"));
        verify(tile("Equal"));
        verify(tile("notes.txt"));
        compare(tile("2 others").sizeText, "50 KB");
        verify(!Program.itemWith("tileName", map(), "tiny.txt"));
        verify(!Program.itemWith("tileName", map(), "Empty"));
    }

    function test_tilesStayInsideTheMapAndApart() {
        const tiles = Array.from(["Movies", "Documents", "Equal", "notes.txt", "2 others"], name => tile(name));
        for (const one of tiles) {
            verify(one.x >= 0 && one.y >= 0 && one.x + one.width <= map().width && one.y + one.height <= map().height);
            for (const other of tiles.filter(candidate => candidate !== one)) {
                verify(one.x + one.width < other.x || other.x + other.width < one.x
                       || one.y + one.height < other.y || other.y + other.height < one.y);
            }
        }
    }

    function test_tileHasLabelWhereThereIsRoom() {
        compare(Program.texts(tile("Movies")), "Movies\n8.0 MB");
        compare(Program.texts(tile("notes.txt")), "notes.txt\n1.0 MB");
        const small = tile("2 others");
        verify(small.width < 55 || small.height < 28);
        compare(Program.texts(small), "");
    }

    function test_pointerOutlinesTile() {
        const face = Program.named("tileFace", tile("Documents"));
        compare(face.opacity, 1);
        mouseMove(tile("Documents"));
        tryCompare(tile("Documents"), "isHovered", true, patience);
        tryCompare(face, "opacity", 0.8, patience);
        compare(String(told(Program.named("hoverOutline", tile("Documents")), "borderColor")), "#66ffffff"); // 0.4 of white
        verify(Program.named("hoverOutline", tile("Documents")));
        verify(!Program.named("hoverOutline", tile("Movies")));
        const size = tile("Documents").sizeText;
        find(`Documents · ${size}`);
        Program.picture("tile-hover");
        mouseMove(tile("Movies"));
        tryCompare(tile("Movies"), "isHovered", true, patience);
        verify(!tile("Documents").isHovered);
        restPointer();
        tryCompare(tile("Movies"), "isHovered", false, patience);
        verify(!Program.named("hoverOutline"));
    }

    function test_clickOnTileGoesIn() {
        clickOn(tile("Documents"));
        find("CONTENTS (2 items)");
        compare(breadcrumbs(), ["Documents"]);
        compare(location(), Surroundings.at("home/Documents"));
        verify(tile("thesis.pdf"));
    }

    function test_clickOnFileTileDoesNothing() {
        clickOn(tile("notes.txt"));
        compare(breadcrumbs(), []);
        compare(Surroundings.calls(), "");
    }

    function test_clickOnOthersDoesNothing() {
        clickOn(tile("2 others"));
        compare(breadcrumbs(), []);
        drill("Equal", 20);
        compare(Program.texts(tile("8 others")).split("\n")[0], "8 others");
        clickOn(tile("8 others"));
        compare(breadcrumbs(), ["Equal"]);
        compare(Surroundings.calls(), "");
    }

    function test_twelveOfTwentyEqualChildrenAreShown() {
        drill("Equal", 20);
        const shown = Program.texts(map()).split("\n").filter(text => text.startsWith("part-"));
        compare(shown.length, 12);
        compare(tile("8 others").sizeText, "800 KB");
        Program.picture("map-equal");
    }

    function test_mapFollowsTheWindowsSize() {
        const before = tile("Movies").width;
        Program.window.width = 1100;
        tryVerify(() => tile("Movies").width < before, patience, "the tile is smaller");
        verify(tile("Documents").x + tile("Documents").width <= map().width);
        Program.picture("analyzer-smallest");
        Program.window.width = 1280;
        tryVerify(() => tile("Movies").width === before, patience, "the tile is as it was");
    }

    function test_backButtonGoesOneLevelBack() {
        verify(!Program.named("backButton").enabled);
        drill("Documents", 2);
        drill("Invoices", 2);
        compare(breadcrumbs(), ["Documents", "Invoices"]);
        clickOn(Program.named("backButton"));
        compare(breadcrumbs(), ["Documents"]);
        find("CONTENTS (2 items)");
        clickOn(Program.named("backButton"));
        compare(breadcrumbs(), []);
        verify(!Program.named("backButton").enabled);
    }

    function test_homeButtonGoesToTheTop() {
        verify(!Program.named("homeButton").enabled);
        drill("Documents", 2);
        drill("Invoices", 2);
        click("Home");
        compare(breadcrumbs(), []);
        find("CONTENTS (6 items)");
        compare(location(), home);
        // It has no tooltip: where the way in stands is told by the file viewer's button.
        compare(told(Program.named("homeButton"), "tip"), "");
    }

    function test_breadcrumbCutsTheWayBack() {
        drill("Documents", 2);
        drill("Invoices", 2);
        drill("2026", 1);
        compare(breadcrumbs(), ["Documents", "Invoices", "2026"]);
        Program.picture("analyzer-deep");
        click("Documents", Program.named("breadcrumbList"));
        compare(breadcrumbs(), ["Documents"]);
        compare(location(), Surroundings.at("home/Documents"));
    }

    function test_longNameIsToldWholeInTheWayIn() {
        const name = "w".repeat(255);
        analyze(Surroundings.at("odd"));
        clickOn(row(name));
        tryVerify(() => breadcrumbs().length === 1, patience, "the folder is on view");
        const crumb = Program.itemWith("isCut", Program.named("breadcrumbList"), true);
        compare(crumb.width, 240);
        const count = () => Program.texts().split("\n").filter(text => text === name).length;
        const before = count();
        mouseMove(crumb);
        tryVerify(() => count() === before + 1, patience, "a tooltip tells the name");
        restPointer();
        verify(!told(Program.itemWith("text", screen(), "Rescan"), "isCut"));
    }

    function test_wayInWorksByKeyboard() {
        drill("Documents", 2);
        drill("Invoices", 2);
        tabTo("the way in", item => item.text === "Invoices" && item.parent.isStop); // at its end; the arrows go along it
        press(Qt.Key_Left);
        compare(focusItem().text, "Documents");
        verify(focusItem().visualFocus);
        press(Qt.Key_Return);
        compare(breadcrumbs(), ["Documents"]);
        tabTo("the back button", item => item === Program.named("backButton"));
        press(Qt.Key_Return);
        compare(breadcrumbs(), []);
        verify(table().activeFocus); // the button is off now, and the keyboard goes on where there is something to do
        drill("Documents", 2);
        tabTo("the home button", item => item === Program.named("homeButton"));
        press(Qt.Key_Return);
        compare(breadcrumbs(), []);
        verify(table().activeFocus);
    }

    function test_openInFinderShowsTheEntryOnView() {
        click("Open in Finder");
        compare(Surroundings.calls(), `show ${home}`);
        Program.forget();
        drill("Movies", 2);
        click("Open in Finder");
        compare(Surroundings.calls(), `show ${home}/Movies`);
    }
}
