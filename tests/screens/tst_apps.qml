import QtQuick
import Quillmere.Screens

// The App Manager: its lists, their tabs, search and order, the panes beside them, and the export.
AppsCase {
    name: "Apps"

    function test_tellsWhatIsInstalled() {
        find("App Manager", screen());
        compare(figure("Installed"), "3");
        compare(figure("Ghost Files"), "2");
        verify(figure("Total Size").endsWith(" MB"));
        find("net.first.alpha", row("Alpha"));
        find("1.2", row("Alpha"));
        find("Select an app", screen());
        find("Click on an app to see details and uninstall options", screen());
        compare(told(Program.named("scanButton"), "tip"), "Re-scan installed apps (Ctrl+R)");
        compare(told(Program.named("exportButton"), "tip"), "Export installed apps");
        verify(!foot());
        Program.picture("apps");
    }

    function test_picturesComeFromTheBundles() {
        const shows = name => Program.named("pictureSymbol", row(name)) === null;
        tryVerify(() => shows("Beta"), patience, "Beta has a picture of its own");
        verify(!shows("Alpha"), "a symbol stands for the others");
    }

    function test_detailsOfAnApplication() {
        choose("Alpha");
        for (const text of ["SIZE BREAKDOWN", "Application", "Caches", "Preferences", "Support Files", "Containers", "Total",
                            "LOCATION", at("Applications/Alpha.app"), "Uninstall Alpha"])
            find(text, screen());
        verify(told(row("Alpha"), "isInPane"));
        compare(told(Program.named("uninstallButton"), "tip"), "Moves the app and selected associated files to Trash");
        Program.picture("apps-details");
        click("Show in Finder", screen());
        compare(Surroundings.calls(), `reveal ${at("Applications/Alpha.app")}`);
    }

    function test_searchNarrowsAndOrderSorts() {
        clickOn(Program.named("appSearch"));
        press(Qt.Key_E);
        compare(names(), ["Beta"]);
        compare(figure("Installed"), "3");
        press(Qt.Key_X);
        compare(names(), []);
        find("No matches", screen());
        Program.picture("apps-no-matches");
        press(Qt.Key_Escape);
        compare(names(), ["Alpha", "Beta", "Gamma"]);
        clickOn(Program.named("sortPicker"));
        compare(told(Program.named("sortPicker"), "shownText"), "Size");
        press(Qt.Key_Up);
        press(Qt.Key_Return);
        compare(told(Program.named("sortPicker"), "shownText"), "Name");
    }

    function test_ghostsAndTheirBadges() {
        clickOn(Program.named("appSearch"));
        press(Qt.Key_E);
        openGhosts();
        compare(names(), ["Tool", "Beta"]); // another tab empties the search
        find("org.vanished.tool", row("Tool"));
        find("3 files", row("Tool"));
        find("ORPHAN", row("Tool"));
        find("LOOKS INSTALLED", row("Beta"));
        verify(told(Program.named("ghostBadge", row("Beta")), "tip").startsWith("This name or bundle ID matches an app"));
        verify(footText().startsWith("2 selected ("));
        compare(told(Program.named("scanButton"), "tip"), "Re-scan ghost files (Ctrl+R)");
        find("Select a ghost app", screen());
        Program.picture("apps-ghosts");
    }

    function test_searchStaysWhereItIsOnAnotherTab() {
        const left = () => Program.named("appSearch").mapToItem(null, 0, 0).x;
        const before = left();
        openGhosts();
        compare(left(), before);
    }

    function test_detailsOfAGhost() {
        openGhosts();
        choose("Tool");
        const files = Program.named("ghostFiles");
        for (const text of ["SIZE BY CATEGORY", "FILES", "Selected files will be moved to Trash"])
            find(text, screen());
        compare(figure("Files"), "3");
        compare(figure("Categories"), "3");
        Program.picture("apps-ghost-details");
        click("Select None", files);
        verify(!Program.named("removeFilesButton").enabled);
        verify(rowsOf(files).every(file => !file.isTicked));
        clickOn(rowsOf(files)[0]);
        verify(told(Program.named("removeFilesButton"), "text").startsWith("Remove 1 files ("));
        const file = rowsOf(files)[0];
        openContextMenu(() => mouseClick(file, file.width / 2, file.height / 2, Qt.RightButton));
        compare(Program.menuLines(), "Show in Finder");
        chooseInContext("Show in Finder");
        compare(Surroundings.calls(), `reveal ${at("home/Library/Caches/org.vanished.tool")}`);
    }

    function test_noGhostsIsGoodNews() {
        Apps.removeGhosts();
        openGhosts();
        clickOn(Program.named("scanButton"));
        waitUntilIdle();
        find("No ghost files found", screen());
        find("Your system is clean of leftover app files.", screen());
        verify(!foot() && !Program.named("selectAllGhosts").enabled);
        Program.picture("apps-no-ghosts");
    }

    function test_beginsOnTheGhostsWhereItWasAskedTo() {
        open("Dashboard");
        Apps.openOnGhostsTab();
        open("App Manager");
        waitUntilIdle();
        compare(names(), ["Tool", "Beta"]);
    }

    function test_rowHasItsMenu() {
        const alpha = row("Alpha");
        const path = at("Applications/Alpha.app");
        const openRowMenu = () => openContextMenu(() => mouseClick(alpha, alpha.width / 2, alpha.height / 2, Qt.RightButton));
        openRowMenu();
        compare(Program.menuLines(), "Open App\nReveal in Finder\nCopy Bundle ID\nCopy App Path\n-\nShow Details");
        chooseInContext("Open App");
        openRowMenu();
        chooseInContext("Reveal in Finder");
        compare(Surroundings.calls(), `open ${path}\nreveal ${path}`);
        openRowMenu();
        chooseInContext("Copy Bundle ID");
        compare(Surroundings.clipboard(), "net.first.alpha");
        openRowMenu();
        chooseInContext("Copy App Path");
        compare(Surroundings.clipboard(), path);
        openRowMenu();
        chooseInContext("Show Details");
        find("Uninstall Alpha", screen());
    }

    function test_scanStopsAndTheListStays() {
        const top = row("Alpha").mapToItem(null, 0, 0).y;
        Surroundings.holdProbes();
        clickOn(Program.named("scanButton"));
        const stop = Program.named("stopButton");
        verify(stop.enabled && !Program.named("scanButton").enabled);
        compare(told(stop, "text"), "Cancel");
        compare(row("Alpha").mapToItem(null, 0, 0).y, top);
        Program.picture("apps-scanning");
        clickOn(stop);
        Surroundings.releaseProbes();
        waitUntilIdle();
        verify(!Program.named("stopButton"));
    }

    function test_listIsExported() {
        const file = at("exported.csv");
        Surroundings.userWillSaveAs(file);
        clickOn(Program.named("exportButton"));
        compare(Surroundings.saveRequest(), "Export Installed Apps\ninstalled_apps.csv");
        verify(Apps.content(file).startsWith("Name,Version,Bundle ID,"));
        compare(Surroundings.calls(), `reveal ${file}`);
        openGhosts();
        clickOn(Program.named("exportButton"));
        verify(Apps.content(file).startsWith("App Name,Bundle ID,Category,Size,File Path\n"));
    }

    function test_manyRowsAreMadeOnlyWhereTheyAreSeen() {
        Apps.makeApps(60);
        clickOn(Program.named("scanButton"));
        waitUntilIdle();
        compare(list().count, 63);
        verify(rowsOf(list()).length < 30);
    }
}
