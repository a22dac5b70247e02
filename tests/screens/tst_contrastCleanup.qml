import QtQuick
import Quillmere.Screens

// Every text of Smart Cleanup can be told from what is behind it, in each of its states and in both palettes.
CleanupCase {
    id: base

    name: "ContrastCleanup"

    ContrastMeter {
        id: meter
        test: base
    }

    function cleanup() {
        Surroundings.releaseDisk();
        tryVerify(() => !Cleanup.isCleaning(), patience, "no cleaning is left running");
        compare(meter.take(), "");
        compare(Program.takeWarnings(), "");
    }

    function openMenuOf(row) {
        openContextMenu(() => mouseClick(row, row.width / 2, row.height / 2, Qt.RightButton));
    }

    function test_listAndPreview_data() {
        return meter.palettes;
    }

    function test_listAndPreview(palette) {
        Surroundings.setDark(palette.isDark);
        meter.measure("cleanup");
        meter.measureHovered([row("Log Files"), row("Trash"), tickOf("Trash")].concat(meter.buttons(screen())), "cleanup hovered");
        openPreview("Log Files");
        clickOn(row("big.log")); // picked, and the current row
        meter.measure("cleanup preview");
        meter.measureHovered([row("big.log"), row("small.log"), cleanButton()].concat(meter.buttons(list())), "cleanup preview hovered");
        openMenuOf(row("small.log"));
        meter.measure("cleanup menu");
        press(Qt.Key_Down);
        meter.measure("cleanup menu lit");
        closeMenu();
        list().goTo(0);
        clickOn(row("Log Files")); // closed again
        review("Trash");
        tick("Trash");
        meter.measure("cleanup reviewed");
        meter.measureHovered([Program.named("reviewedSwitch")], "cleanup reviewed hovered");
    }

    function test_previewsInPortions_data() {
        return meter.palettes;
    }

    function test_previewsInPortions(palette) {
        Surroundings.setDark(palette.isDark);
        Cleanup.makeLogs(117);
        scan();
        openPreview("Log Files");
        list().positionViewAtIndex(list().count - 4, ListView.Contain);
        find("50 of 120 shown", list());
        meter.measure("cleanup portion");
        Surroundings.remove(Surroundings.at("home/.Trash/thrown away"));
        list().positionViewAtEnd();
        openPreview("Trash");
        list().positionViewAtEnd();
        find("No matching files found.", list());
        meter.measure("cleanup without files");
    }

    function test_runAndScans_data() {
        return meter.palettes;
    }

    function test_runAndScans(palette) {
        Surroundings.setDark(palette.isDark);
        Surroundings.remove(Surroundings.at("home/.Trash/thrown away")); // so that the run lists the Trash
        review("Trash");
        tick("Trash");
        Surroundings.holdDisk(Surroundings.at("home/.Trash"));
        askToClean();
        meter.measure("cleanup question");
        clickOn(Program.named("confirmAction"));
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the run is under way");
        meter.measure("cleanup cleaning");
        Surroundings.releaseDisk();
        tryVerify(() => !Cleanup.isCleaning() && !foot(), patience, "the run has ended");
        waitForScan();
        holdScan();
        meter.measure("cleanup scanning");
        clickOn(Program.named("stopButton"));
        meter.measure("cleanup stopping");
        Surroundings.releaseDisk();
        waitForScan();
        Cleanup.empty();
        scan();
        meter.measure("cleanup clean");
        holdScan();
        meter.measure("cleanup searching");
        Surroundings.releaseDisk();
        waitForScan();
    }
}
