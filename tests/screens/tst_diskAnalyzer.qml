import QtQuick
import Quillmere.Screens

// The Disk Analyzer's scan: its start, its progress, its cancel, its age, and another folder.
AnalyzerCase {
    name: "DiskAnalyzer"

    function test_scansHomeOnAppearing() {
        compare(location(), home);
        find("CONTENTS (6 items)");
        find("VISUAL MAP");
        verify(Program.texts(screen()).includes("6 items · 14 MB"));
        compare(Program.texts(screen()).split("\n").slice(0, 4).join("|"),
                "Disk Analyzer|Change Folder|Cached · just now|Rescan");
        Program.picture("analyzer");
    }

    function test_keepsFreshTreeWhenScreenComesBack() {
        Surroundings.pass(120);
        open("Organizer");
        Surroundings.holdProbes();
        open("Disk Analyzer");
        find("Cached · 2 min ago");
        find("CONTENTS (6 items)");
        compare(Disk.probeCount(), 0);
        Surroundings.releaseProbes();
        click("Rescan");
        find("Cached · just now");
    }

    function test_scansAgainWhenTreeIsStale() {
        Surroundings.pass(301);
        open("Organizer");
        Surroundings.holdProbes();
        open("Disk Analyzer");
        tryVerify(() => Disk.probeCount() === 1, patience, "a scan has begun");
        Surroundings.releaseProbes();
        find("Cached · just now");
    }

    function test_pillTellsItsAge() {
        click("Rescan");
        mouseMove(find("Cached · just now"));
        find("Last scanned just now. Auto-refresh in 5 min 0 sec, or click Refresh to update now.");
        Program.picture("pill-tip");
        restPointer();
        tryGone("Last scanned just now. Auto-refresh in 5 min 0 sec, or click Refresh to update now.");
    }

    function test_showsProgressInPlaceOfTheOldTree() {
        holdScan();
        find("Analyzing disk usage...");
        find(`Scanning ${home}`);
        find("Scanning...");
        verify(!Program.textItem("VISUAL MAP"));
        verify(!Program.textItem("Cached · just now"));
        verify(!Program.named("homeButton").enabled);
        Program.picture("analyzer-scanning");
        Surroundings.releaseProbes();
        find("CONTENTS (6 items)");
        tryGone("Scanning...");
        tryGone("Analyzing disk usage...");
    }

    function test_nothingMovesWhenAScanBeginsOrEnds() {
        const places = () => {
            Program.settle();
            const commands = ["changeFolderButton", "scanButton", "homeButton", "finderButton"].map(name => Program.named(name));
            return commands.map(item => [item.mapToItem(null, 0, 0), item.width].join()).join(" ");
        };
        const before = places();
        holdScan();
        compare(places(), before);
        verify(!Program.named("scanButton").enabled);
        verify(Program.named("stopButton"));
        Surroundings.releaseProbes();
        find("CONTENTS (6 items)");
        compare(places(), before);
        verify(Program.named("scanButton").enabled);
        verify(!Program.named("stopButton"));
    }

    function test_rescanDoesNothingDuringScan() {
        holdScan();
        click("Rescan");
        press(Qt.Key_R, Qt.ControlModifier);
        compare(Disk.probeCount(), 1);
        Surroundings.releaseProbes();
        find("CONTENTS (6 items)");
        verify(!Disk.isScanning());
    }

    function test_cancelShowsWhatWasMeasured() {
        holdScan();
        mouseMove(Program.named("stopButton"));
        find("Stop scanning");
        click("Cancel");
        tryGone("Scanning...");
        find("CONTENTS (6 items)");
        find("Cached · just now");
        compare(Disk.probeCount(), 0);
        verify(row("notes.txt"));
        drill("Documents", 2);
        compare(row("Invoices").sizeText, "0 B");
        compare(row("thesis.pdf").sizeText, "3.0 MB");
        Surroundings.releaseProbes();
        // What is there counts as the result until somebody asks for another.
        open("Organizer");
        open("Disk Analyzer");
        find("CONTENTS (6 items)");
        click("Rescan");
        waitForScan();
        drill("Documents", 2);
        verify(row("Invoices").sizeText !== "0 B");
    }

    function test_cancelOnAFolderThatDoesNotAnswerShowsSo() {
        const folder = Surroundings.at("hollow");
        Surroundings.holdDisk(folder);
        Surroundings.userWillChoose(folder);
        click("Change Folder");
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the scan waits at the folder");
        find("Analyzing disk usage...");
        click("Cancel");
        const card = Program.named("analyzerStopped");
        find("Stopping…", card);
        verify(!Program.named("analyzerProgress"));
        verify(Program.named("scanButton").enabled);
        Program.picture("analyzer-stopping");
        find("Scan stopped", card);
        compare(Program.texts(card), "Scan stopped\nRescan");
        Program.picture("analyzer-stopped");
        Surroundings.releaseDisk();
        find("CONTENTS (0 items)");
        verify(!Program.named("analyzerStopped"));
    }

    function test_longPathOfAScanIsToldWhole() {
        const folder = `${Surroundings.at("odd")}/${"w".repeat(255)}`;
        Surroundings.holdDisk(folder);
        Surroundings.userWillChoose(folder);
        click("Change Folder");
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the scan waits at the folder");
        const count = () => Program.texts().split("\n").filter(text => text === `Scanning ${folder}`).length;
        mouseMove(find(`Scanning ${folder}`));
        tryVerify(() => count() === 2, patience, "a tooltip tells the path");
        Surroundings.releaseDisk();
        find("CONTENTS (2 items)");
    }

    function test_scanThatStoppedBeginsAgain() {
        const folder = Surroundings.at("home");
        Surroundings.holdDisk(folder);
        click("Rescan");
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the scan waits at the folder");
        click("Cancel");
        find("Scan stopped");
        tabTo("the command of the state", item => item === Program.named("scanAgain"));
        press(Qt.Key_Return);
        find("Analyzing disk usage...");
        Surroundings.releaseDisk();
        find("CONTENTS (6 items)");
    }

    function test_cancelsByKeyboard() {
        holdScan();
        tabTo("the Cancel button", item => item === Program.named("stopButton"));
        press(Qt.Key_Return);
        find("CONTENTS (6 items)");
        compare(Disk.probeCount(), 0);
        tabTo("the Rescan button", item => item === Program.named("scanButton"));
    }

    function test_refreshKeyIsTheScreensOwn() {
        drill("Movies", 2);
        Surroundings.holdProbes();
        press(Qt.Key_R, Qt.ControlModifier);
        tryVerify(() => Disk.probeCount() === 1, patience, "a scan has begun");
        compare(Surroundings.posted(), "");
        Surroundings.releaseProbes();
        find("CONTENTS (6 items)");
        compare(breadcrumbs(), []);
    }

    function test_refreshLineOfTheMenuRefreshesTheWidgetOnly() {
        choose("Tools", "Refresh Current View");
        compare(Surroundings.posted(), "Quillmere.rescan");
        verify(!Disk.isScanning());
    }

    function test_rescanGoesBackToTheTop() {
        drill("Movies", 2);
        click("Rescan");
        find("CONTENTS (6 items)");
        compare(breadcrumbs(), []);
    }

    function test_changesToChosenFolder() {
        drill("Movies", 2);
        Surroundings.userWillChoose(Surroundings.at("home/Documents"));
        click("Change Folder");
        compare(Surroundings.folderMessage(), "Choose a folder to analyze");
        compare(Surroundings.folderStart(), home);
        tryVerify(() => location() === Surroundings.at("home/Documents"), patience, "the folder is on view");
        find("CONTENTS (2 items)");
        compare(breadcrumbs(), []);
        // The choice outlives the screen.
        open("Organizer");
        open("Disk Analyzer");
        compare(location(), Surroundings.at("home/Documents"));
    }

    function test_staysWherePanelIsCancelled() {
        drill("Movies", 2);
        Surroundings.userWillCancel();
        click("Change Folder");
        compare(Surroundings.folderMessage(), "Choose a folder to analyze");
        compare(location(), Surroundings.at("home/Movies"));
        compare(breadcrumbs(), ["Movies"]);
        verify(!Disk.isScanning());
    }

    function test_showsEmptyFolder() {
        analyze(Surroundings.at("hollow"));
        find("CONTENTS (0 items)");
        find("0 items · 0 B");
        find("Nothing here takes any space");
        compare(Program.texts(screen()).split("\n").filter(text => text === "Empty directory").length, 1);
        Program.picture("analyzer-empty");
    }

    function test_lightDesktopReachesTheScreen() {
        Surroundings.setDark(false);
        compare(String(find("VISUAL MAP").color), "#59636e");
        Program.picture("analyzer-light");
    }
}
