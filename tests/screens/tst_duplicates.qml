import QtQuick
import Quillmere.Screens

// The Duplicate Finder: the way there, the groups, their figures, the filters, and the choices for many files at once.
DuplicatesCase {
    name: "Duplicates"

    function test_opensBySidebarAndByKey() {
        open("Dashboard");
        press(Qt.Key_5, Qt.ControlModifier);
        compare(Program.selectedScreen(), "Duplicates");
        find("Duplicate Finder", screen());
        open("Organizer");
        open("Duplicates");
        find("Duplicate Finder", screen());
    }

    function test_showsGroupsByWaste() {
        compare(groups(), ["photo.JPG", "film.mov", "report.pdf", "plain"]);
        compare(fileRows().map(nameOf), ["a/photo.JPG", "b/photo.jpg", "c/photo.png", "a/film.mov", "b/film.mov",
                                         "c/film.mov", "a/report.pdf", "b/report.pdf", "a/plain", "b/plain.zip"]);
        compare(Program.texts(head("photo.JPG")).split("\n").sort(),
                ["3 copies · 300 KB each · 600 KB wasted", "600 KB recoverable", "Newest", "Oldest", "photo.JPG"]);
        compare(Program.texts(head("plain")).split("\n").sort(),
                ["150 KB recoverable", "2 copies · 150 KB each · 150 KB wasted", "Newest", "Oldest", "plain"]);
        Program.picture("duplicates");
    }

    function test_fileRowTellsBadgeNamePathAndDay() {
        const kept = Program.texts(file("a/photo.JPG")).split("\n");
        compare(kept.length, 4);
        verify(["photo.JPG", "KEEP", path("a/photo.JPG")].every(text => kept.includes(text)), kept.join());
        verify(kept.some(text => /^\S+ 5, 2024$/.test(text)), kept.join());
        const doomed = Program.texts(file("c/photo.png")).split("\n");
        verify(["photo.png", "DELETE", path("c/photo.png")].every(text => doomed.includes(text)), doomed.join());
        verify(doomed.some(text => /^\S+ 7, 2024$/.test(text)), doomed.join());
    }

    function test_writesHomeAsTilde() {
        Duplicates.scanOnly([Surroundings.at("home/Equal")], usualMinSize);
        scan();
        verify(fileRows()[0].detail.startsWith("~/Equal/part-"), fileRows()[0].detail);
    }

    function test_keepsFirstOfEachGroupAtFirst() {
        compare(going(), usuallyGoing);
        compare(Array.from(["Groups", "Files", "Wasted", "To delete"], name => figure(name)), ["4", "10", "1.2 MB", "6 files (1.2 MB)"]);
        compare(footText(), "6 files marked for deletion (1.2 MB)");
        compare(told(Program.named("scanButton"), "text"), "Rescan");
    }

    function test_scanThatFindsNothingShowsTheStartAgain() {
        Duplicates.scanOnly([Surroundings.at("hollow")], usualMinSize);
        scan();
        find("Configure scan directories above and click Start Scan", screen());
        compare(scanButton().text, "Start Scan");
        verify(!list());
        verify(!foot());
        compare(figure("Groups"), "0");
        verify(!Program.itemWith("text", screen(), "Select None").enabled);
        Program.picture("duplicates-start");
    }

    function test_resultOutlivesTheScreen() {
        clickFile("a/photo.JPG");
        clickOn(chip("documents"));
        open("Organizer");
        open("Duplicates");
        compare(groups().length, 4);
        compare(going(), ["a/photo.JPG"].concat(usuallyGoing));
        verify(chip("all").isSelected);
    }

    function test_filterShowsGroupsByTheirFirstFile_data() {
        return [
            { tag: "all", shown: ["photo.JPG", "film.mov", "report.pdf", "plain"], toDelete: "6 files (1.2 MB)" },
            { tag: "images", shown: ["photo.JPG"], toDelete: "2 files (600 KB)" },
            { tag: "documents", shown: ["report.pdf"], toDelete: "1 files (200 KB)" },
            { tag: "archives", shown: [], toDelete: null },
            { tag: "media", shown: ["film.mov"], toDelete: "2 files (240 KB)" },
        ];
    }

    function test_filterShowsGroupsByTheirFirstFile(data) {
        clickOn(chip("images"));
        clickOn(chip(data.tag));
        compare(groups(), data.shown);
        verify(chip(data.tag).isSelected);
        compare(["all", "images", "documents", "archives", "media"].filter(label => chip(label).isSelected), [data.tag]);
        compare(figure("To delete"), data.toDelete);
        compare(footText(), data.toDelete ? data.toDelete.replace(" (", " marked for deletion (") : "");
        if (data.shown.length === 0)
            find("No duplicates match this filter.", screen());
        Program.picture("duplicates-" + data.tag);
    }

    function test_filterIsChosenByKeyboard() {
        tabTo("the chips", item => item === chip("all"));
        verify(focusItem().visualFocus);
        press(Qt.Key_Tab);
        compare(focusItem().isSelected, undefined); // no other chip is a stop
        press(Qt.Key_Backtab);
        compare(focusItem(), chip("all"));
        press(Qt.Key_Right);
        press(Qt.Key_Right);
        compare(focusItem(), chip("documents"));
        verify(focusItem().visualFocus);
        compare(groups(), ["report.pdf"]);
        press(Qt.Key_Left);
        compare(groups(), ["photo.JPG"]);
        press(Qt.Key_Home);
        press(Qt.Key_Left);
        compare(focusItem(), chip("all"));
        press(Qt.Key_End);
        compare(focusItem(), chip("media"));
        press(Qt.Key_Tab);
        verify(focusItem() !== chip("all"));
        press(Qt.Key_Backtab);
        compare(focusItem(), chip("media")); // the chosen one is their one stop
    }

    function test_figuresKeepTheirPlacesWhileFilesAreChosen() {
        const place = () => `${list().mapToItem(null, 0, 0).y} ${list().height}`;
        Program.window.width = 1440;
        Program.settle();
        const before = place();
        click("Select None", screen());
        compare(figure("To delete"), null);
        compare(place(), before);
    }

    function test_everythingEndsAtOneRightEdge() {
        const end = item => item.mapToItem(null, item.width, 0).x;
        const edge = end(scanButton());
        compare(end(Program.itemWith("text", screen(), "Keep Oldest")), edge);
        compare(end(rows()[0]), edge);
        compare(end(rows()[1]), edge);
        compare(end(foot()), edge);
        // What lies in a card has an edge of its own.
        const inner = end(Program.itemWith("text", screen(), "Add Exclusion"));
        compare(end(Program.itemWith("ruleText", screen())), inner);
        compare(end(Program.named("resetScope")), inner);
    }

    function test_wasteOfNothingIsNoAlarm() {
        const color = () => String(Program.textItem(figure("Wasted"), Program.itemWith("label", screen(), "Wasted")).color);
        compare(color(), "#d29922");
        clickOn(chip("archives"));
        compare(figure("Wasted"), "0 B");
        compare(color(), "#e6edf3");
    }

    function test_bulkButtonsChooseForAllGroups_data() {
        return [
            { tag: "Select None", going: [] },
            { tag: "Select All Duplicates", going: usuallyGoing },
            { tag: "Keep Newest",
              going: ["a/photo.JPG", "b/photo.jpg", "a/film.mov", "b/film.mov", "b/report.pdf", "a/plain"] },
            { tag: "Keep Oldest",
              going: ["b/photo.jpg", "c/photo.png", "b/film.mov", "c/film.mov", "a/report.pdf", "b/plain.zip"] },
        ];
    }

    function test_bulkButtonsChooseForAllGroups(data) {
        const other = data.tag === "Select None" ? "Keep Newest" : "Select None";
        click(other, screen());
        click(data.tag, screen());
        compare(going(), data.going);
        compare(footText() !== "", data.going.length > 0);
        compare(figure("To delete") !== null, data.going.length > 0);
    }

    function test_bulkButtonsReachGroupsThatTheFilterHides() {
        clickOn(chip("images"));
        click("Select None", screen());
        clickOn(chip("all"));
        compare(going(), []);
    }

    function test_groupButtonsChooseForTheirGroup() {
        const others = ["b/film.mov", "c/film.mov", "b/report.pdf", "b/plain.zip"];
        click("Newest", head("photo.JPG"));
        compare(going(), ["a/photo.JPG", "b/photo.jpg", ...others]);
        click("Oldest", head("photo.JPG"));
        compare(going(), ["b/photo.jpg", "c/photo.png"].concat(others));
        clickOn(chip("documents"));
        click("Oldest", head("report.pdf"));
        compare(going(), ["a/report.pdf"]);
    }

    function test_rescanKeepsSingleMarksAndForgetsTheRest() {
        click("Select None", screen());
        clickFile("b/film.mov");
        click("Newest", head("photo.JPG"));
        scan();
        compare(going(), ["b/photo.jpg", "c/photo.png", "b/film.mov", "b/report.pdf", "b/plain.zip"]);
    }

    function test_refreshCommandScansAgain_data() {
        return [
            { tag: "key", how: () => press(Qt.Key_R, Qt.ControlModifier) },
            { tag: "menu", how: () => choose("Tools", "Refresh Current View") },
        ];
    }

    function test_refreshCommandScansAgain(data) {
        click("Select None", screen());
        data.how();
        tryVerify(() => !progress() && going().length > 0, patience, "the new result is there");
        compare(going(), usuallyGoing);
        compare(Surroundings.posted(), "Quillmere.rescan");
    }

    function test_settingsHideAndShow() {
        find("Scan Directories", screen());
        click("Hide Settings", screen());
        tryGone("Scan Directories", screen());
        const top = list().mapToItem(null, 0, 0).y;
        Program.picture("duplicates-no-settings");
        click("Settings", screen());
        find("Scan Directories", screen());
        verify(list().mapToItem(null, 0, 0).y > top);
        tabTo("the settings button", item => item === Program.named("settingsButton"));
        press(Qt.Key_Return);
        tryGone("Scan Directories", screen());
    }

    function test_fitsTheSmallestWindow() {
        Program.window.width = 1100;
        Program.window.height = 700;
        Program.settle();
        Program.picture("duplicates-smallest");
        const middle = item => item.mapToItem(null, item.width / 2, item.height / 2);
        const isClearOf = (one, other) => Math.abs(middle(one).x - middle(other).x) > (one.width + other.width) / 2
                                          || Math.abs(middle(one).y - middle(other).y) > (one.height + other.height) / 2;
        const button = text => Program.itemWith("text", screen(), text);
        verify(isClearOf(chip("media"), button("Select All Duplicates")));
        verify(isClearOf(chip("all"), button("Select All Duplicates")));
        verify(isClearOf(button("Keep Oldest"), list()));
        verify(isClearOf(Program.itemWith("label", screen(), "To delete"), Program.named("settingsButton")));
        verify(middle(button("Keep Oldest")).x + button("Keep Oldest").width / 2 <= 1100);
        verify(list().height > 3 * rows()[0].height, `the list is ${list().height} high`);
    }
}
