import QtQuick
import Quillmere.Screens

// Every text can be told from what is behind it, in what comes over the Disk Analyzer or in its place, in both palettes.
AnalyzerCase {
    id: base

    name: "ContrastLayers"

    ContrastMeter {
        id: meter
        test: base
    }

    function cleanup() {
        Surroundings.releaseDisk();
        compare(meter.take(), "");
        compare(Program.takeWarnings(), "");
    }

    function test_folderPanel_data() {
        return meter.palettes;
    }

    function test_folderPanel(palette) {
        Surroundings.setDark(palette.isDark);
        Program.askForFolder("Which folder?");
        find("Movies", Program.named("panelList"));
        meter.measure("panel");
        const list = Program.named("panelList");
        meter.measureHovered([find("Movies", list), find("Home", Program.named("panelPlaces"))], "panel hovered");
        askForName("a/b");
        meter.measure("new folder");
        meter.measureHovered([Program.named("promptField"), Program.named("promptCancel"), Program.named("promptAction")], "new folder hovered");
        press(Qt.Key_Return);
        find("No folder can have the name “a/b”");
        meter.measure("no new folder");
        press(Qt.Key_Escape);
        tryGone("Which folder?");
    }

    function askForName(name) {
        clickOn(Program.named("panelNewFolder"));
        tryVerify(() => Program.named("promptField")?.activeFocus, patience, "the question is up");
        meter.measure("new folder without a name");
        for (const letter of name)
            keyClick(letter);
        Program.settle();
    }

    function test_savePanel_data() {
        return meter.palettes;
    }

    function test_savePanel(palette) {
        Surroundings.setDark(palette.isDark);
        Program.askForSavePath("Save as", "notes.txt");
        find("Movies", Program.named("panelList"));
        meter.measure("save panel");
        const list = Program.named("panelList");
        meter.measureHovered([find("Movies", list), Program.named("panelName"), Program.named("panelAccept")], "save panel hovered");
        askForName("albums");
        meter.measure("save panel new folder");
        press(Qt.Key_Escape);
        tryVerify(() => !Program.named("promptField"), patience, "the question is gone");
        clickOn(Program.named("panelAccept"));
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "it asks whether to replace");
        meter.measure("save panel question");
        press(Qt.Key_Escape);
        tryVerify(() => !Program.named("confirmCancel"), patience, "the question is gone");
        press(Qt.Key_Escape);
        tryGone("Save as");
    }


    function test_stoppedScan_data() {
        return meter.palettes;
    }

    function test_stoppedScan(palette) {
        Surroundings.setDark(palette.isDark);
        Surroundings.holdDisk(home);
        click("Rescan");
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the scan waits at the folder");
        meter.measure("scanning");
        click("Cancel");
        find("Stopping…", Program.named("analyzerStopped"));
        meter.measure("stopping");
        find("Scan stopped");
        meter.measure("stopped");
        Surroundings.releaseDisk();
        find("CONTENTS (6 items)");
    }

    function test_rowMenu_data() {
        return meter.palettes;
    }

    function test_rowMenu(palette) {
        Surroundings.setDark(palette.isDark);
        openRowMenu("Documents");
        meter.measure("row menu");
        press(Qt.Key_Down);
        meter.measure("row menu lit");
        closeMenu();
    }

    function test_tooltip_data() {
        return meter.palettes;
    }

    function test_tooltip(palette) {
        Surroundings.setDark(palette.isDark);
        mouseMove(find("Cached · just now"));
        find("Last scanned just now. Auto-refresh in 5 min 0 sec, or click Refresh to update now.");
        meter.measure("tooltip");
        restPointer();
    }

    function test_banner_data() {
        return meter.palettes;
    }

    function test_banner(palette) {
        Surroundings.setDark(palette.isDark);
        Activity.setFullAccess(false);
        open("Dashboard");
        open("Disk Analyzer");
        click("Rescan");
        tryVerify(() => !Disk.isScanning() && Program.named("accessBanner"), patience, "the banner shows");
        meter.measure("banner");
        meter.measureHovered([Program.named("bannerButton"), Program.named("bannerHide")], "banner hovered");
    }
}
