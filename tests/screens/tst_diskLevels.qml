import QtQuick
import Quillmere.Screens

// A deeper level of the Disk Analyzer, which is fetched on the way, and what goes on meanwhile.
AnalyzerCase {
    name: "DiskLevels"

    function test_deeperLevelLoads() {
        drill("Documents", 2);
        Surroundings.holdProbes();
        click("Invoices", table());
        find("Loading contents...");
        verify(!table());
        compare(breadcrumbs(), ["Documents"]);
        Program.picture("analyzer-loading");
        Surroundings.releaseProbes();
        tryGone("Loading contents...");
        compare(breadcrumbs(), ["Documents", "Invoices"]);
        verify(row("2026"));
        verify(row("summary.txt"));
    }

    function test_hiddenTableTakesNoKeys() {
        drill("Documents", 2);
        Program.settle();
        table().forceActiveFocus();
        walkTo("Invoices");
        Surroundings.holdProbes();
        press(Qt.Key_Right);
        find("Loading contents...");
        for (const key of [Qt.Key_Up, Qt.Key_Return, Qt.Key_Enter, Qt.Key_Menu, Qt.Key_Left])
            press(key);
        compare(Program.menuLines(), "");
        compare(Surroundings.calls(), "");
        compare(breadcrumbs(), ["Documents"]);
        Surroundings.releaseProbes();
        tryGone("Loading contents...");
        compare(breadcrumbs(), ["Documents", "Invoices"]);
        walkTo("summary.txt");
    }

    function test_tileOpensAFolderWhileALevelLoads() {
        drill("Documents", 2);
        Surroundings.holdProbes();
        click("Invoices", table());
        find("Loading contents...");
        click("Home");
        clickOn(tile("Movies"));
        compare(breadcrumbs(), ["Movies"]);
        Surroundings.releaseProbes();
        tryGone("Loading contents...");
        compare(breadcrumbs(), ["Movies", "Invoices"]);
    }

    function test_screenMayGoWhileLevelLoads() {
        drill("Documents", 2);
        Surroundings.holdProbes();
        click("Invoices", table());
        find("Loading contents...");
        open("Organizer");
        Surroundings.releaseProbes();
        tryVerify(() => Disk.probeCount() === 0, patience, "the probe ends");
        open("Disk Analyzer");
        find("CONTENTS (6 items)");
        compare(breadcrumbs(), []);
    }

    function test_screenMayGoWhileScanRuns() {
        holdScan();
        open("Organizer");
        Surroundings.releaseProbes();
        tryVerify(() => !Disk.isScanning(), patience, "the scan ends");
        open("Disk Analyzer");
        find("CONTENTS (6 items)");
    }
}
