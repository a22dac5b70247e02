import QtQuick
import Quillmere.Screens

// The Duplicate Finder while it scans: what it tells, what may be done meanwhile, and how it is stopped; and a result of
// thousands of groups.
DuplicatesCase {
    name: "DuplicateScan"

    function stopButton() {
        return Program.named("stopButton");
    }

    function texts() {
        return Program.texts(progress()).split("\n");
    }

    function test_showsTheFolderInPlaceOfTheOldResult() {
        holdScan("b");
        tryVerify(() => texts().includes(path("b")), patience, "the folder is told");
        compare(texts(), ["0%", path("b")]);
        verify(!list());
        verify(!foot());
        compare(figure("Groups"), "0");
        compare(scanButton().text, "Start Scan");
        verify(!scanButton().enabled);
        Program.picture("duplicates-scanning");
        Surroundings.releaseDisk();
        waitForScan();
        compare(groups().length, 4);
        compare(scanButton().text, "Rescan");
        verify(!stopButton());
    }

    function test_showsTheComparing() {
        holdScan("a/photo.JPG");
        tryVerify(() => texts().includes("Comparing file hashes..."), patience, "the second stage is told");
        compare(texts(), ["40%", "Comparing file hashes..."]);
        Surroundings.releaseDisk();
        waitForScan();
    }

    function test_progressGrowsWithWhatIsCompared() {
        // The sizes with two files or more, from the largest on: photo, report, plain, film.
        holdScan("a/plain");
        tryVerify(() => texts().includes("70%"), patience, "half of the second stage is done");
        Surroundings.releaseDisk();
        waitForScan();
    }

    function test_nothingCanBeChosenMeanwhile() {
        holdScan("b");
        for (const text of ["Select All Duplicates", "Select None", "Keep Newest", "Keep Oldest"])
            verify(!Program.itemWith("text", screen(), text).enabled, text);
        click("Start Scan", screen());
        press(Qt.Key_R, Qt.ControlModifier);
        Surroundings.releaseDisk();
        waitForScan();
        compare(groups().length, 4);
    }

    function test_stopInTheWalkLeavesNothing() {
        holdScan("b");
        mouseMove(stopButton());
        find("Stop scanning");
        compare(stopButton().text, "Stop");
        clickOn(stopButton());
        compare(stopButton().text, "Stopping…");
        verify(!stopButton().enabled);
        verify(progress());
        Program.picture("duplicates-stopping");
        Surroundings.releaseDisk();
        waitForScan();
        find("Configure scan directories above and click Start Scan", screen());
        verify(!Program.textItem("Cancelled", screen()));
        compare(scanButton().text, "Start Scan");
        scan();
        compare(groups().length, 4);
    }

    function test_stopInTheComparingSaysSo() {
        holdScan("a/photo.JPG");
        clickOn(stopButton());
        Surroundings.releaseDisk();
        waitForScan();
        find("Configure scan directories above and click Start Scan", screen());
        find("Cancelled", screen());
        scan();
        clickOn(chip("archives"));
        verify(!Program.textItem("Cancelled", screen()));
    }

    function test_stopShowsWhatWasFoundUntilThen() {
        holdScan("a/plain");
        clickOn(stopButton());
        Surroundings.releaseDisk();
        waitForScan();
        compare(groups(), ["photo.JPG", "report.pdf"]);
    }

    function test_stopsByKeyboard() {
        holdScan("b");
        tabTo("the Stop button", item => item === stopButton());
        verify(focusItem().visualFocus);
        press(Qt.Key_Return);
        compare(stopButton().text, "Stopping…");
        Surroundings.releaseDisk();
        waitForScan();
        compare(scanButton().text, "Start Scan");
    }

    function test_screenMayGoMeanwhile() {
        holdScan("b");
        open("Organizer");
        open("Duplicates");
        verify(progress());
        compare(stopButton().text, "Stop");
        clickOn(stopButton());
        open("Organizer");
        open("Duplicates");
        compare(stopButton().text, "Stopping…");
        open("Organizer");
        Surroundings.releaseDisk();
        open("Duplicates");
        waitForScan();
        compare(scanButton().text, "Start Scan");
    }

    // Where the commands of the head stand, and how wide they are.
    function places() {
        Program.settle();
        const commands = Array.from(["settingsButton", "scanButton"], name => Program.named(name));
        return Array.from(commands, item => [item.mapToItem(null, 0, 0), item.width].join()).join(" ");
    }

    function test_nothingMovesWhenAScanBeginsOrEnds() {
        const before = places();
        const card = () => rows()[0].mapToItem(null, 0, rows()[0].gap).y;
        const top = card();
        holdScan("b");
        compare(places(), before);
        const stop = stopButton().mapToItem(null, 0, 0).x;
        compare(progress().mapToItem(null, 0, 0).y, top);
        clickOn(stopButton());
        compare(stopButton().mapToItem(null, 0, 0).x, stop);
        compare(places(), before);
        Surroundings.releaseDisk();
        waitForScan();
        compare(places(), before);
    }

    function test_stopStandsWhereItStandsOnOtherScreens() {
        const place = () => [stopButton(), scanButton()].map(item => {
            const end = item.mapToItem(null, item.width, 0);
            return `${end.x} ${end.y}`;
        }).join();
        holdScan("b");
        const here = place();
        const title = Program.named("screenTitle").mapToItem(null, 0, 0);
        Surroundings.holdProbes();
        open("Disk Analyzer");
        tryVerify(() => stopButton(), patience, "a scan runs there too");
        compare(place(), here);
        compare(Program.named("screenTitle").mapToItem(null, 0, 0).y, title.y);
        Surroundings.releaseProbes();
        Surroundings.releaseDisk();
        tryGone("Scanning...");
        open("Duplicates");
        waitForScan();
    }

    function test_scopeMayChangeMeanwhile() {
        holdScan("b");
        clickOn(Program.named("removeScanPath"));
        click("1 MB", choices());
        Surroundings.releaseDisk();
        waitForScan();
        compare(groups().length, 4); // the scan goes on with what it began with
        compare(Program.named("scanPathList").count, 2);
        Duplicates.scanOnly([path("a")], usualMinSize);
    }

    // Opens the picker of the least size.
    function choices() {
        clickOn(Program.named("minSizePicker"));
        const popup = told(Program.named("minSizePicker"), "popup").contentItem;
        tryVerify(() => Program.textItem("10 MB", popup), patience, "the picker is open");
        return popup;
    }

    function test_scanButtonNeedsAFolder() {
        Duplicates.scanOnly([], usualMinSize);
        Program.settle();
        verify(!scanButton().enabled);
        find("No folders selected — add one to start scanning.", screen());
    }

    function delegates() {
        return Array.from(list().contentItem.children).filter(item => item.isHead !== undefined).length;
    }

    function test_thousandsOfGroupsAreMadeOnlyWhereTheyAreOnView() {
        const pairs = 5000;
        Program.window.height = usualHeight;
        Duplicates.scanOnly([Duplicates.makePairs(pairs)], 1024);
        clickOn(scanButton());
        tryVerify(() => !progress() && list(), 6 * patience, "the scan has ended");
        Program.settle();
        compare(list().count, 3 * pairs);
        compare(figure("Groups"), String(pairs));
        const rowHeight = list().itemAtIndex(0).height;
        const onView = Math.ceil(list().height / rowHeight);
        const most = 5 * onView + 20; // with some around those on view, to be ready
        verify(delegates() >= onView && delegates() <= most, `${delegates()} rows are made for ${onView} on view`);
        compare(list().contentHeight, 3 * pairs * rowHeight);
        list().positionViewAtEnd();
        Program.settle();
        verify(list().itemAtIndex(3 * pairs - 1));
        verify(!list().itemAtIndex(0));
        verify(delegates() <= most, `${delegates()} rows are made for ${onView} on view`);
        const place = list().contentY;
        const row = list().itemAtIndex(3 * pairs - 1);
        clickOn(row);
        compare(row.badge, "KEEP");
        compare(list().contentY, place);
        list().contentY = place / 2;
        click("Select None", screen());
        compare(list().contentY, place / 2);
        compare(figure("To delete"), null);
        clickOn(chip("documents"));
        compare(list().contentY, 0);
        compare(list().count, 3 * pairs);
        Program.picture("duplicates-many");
    }
}
