import QtQuick
import Quillmere.Screens

// Every text can be told from what is behind it, on the screens as they stand and with what the pointer and the keys do to
// them, in both palettes.
DuplicatesCase {
    id: base

    name: "Contrast"

    ContrastMeter {
        id: meter
        test: base
    }

    // Whatever falls short is told at once, at the end.
    function cleanup() {
        Program.window.width = usualWidth;
        Program.window.height = usualHeight;
        compare(meter.take(), "");
        compare(Program.takeWarnings(), "");
    }

    function test_duplicateFinder_data() {
        return meter.palettes;
    }

    function test_duplicateFinder(palette) {
        Surroundings.setDark(palette.isDark);
        meter.measure("duplicates");
        meter.measureHovered([file("a/photo.JPG"), file("b/photo.jpg"), file("c/photo.png")].concat(meter.buttons(screen())), "duplicates hovered");
        onlyPhoto(); // the rest are kept; b/photo.jpg is the current row
        meter.measure("duplicates selected");
        meter.measureHovered([file("b/photo.jpg")], "duplicates selected and hovered");
        for (const name of ["a/photo.JPG", "c/photo.png"])
            clickFile(name);
        meter.measure("duplicates nothing kept");
        openFileMenu("b/photo.jpg");
        meter.measure("duplicates menu");
        press(Qt.Key_Down);
        meter.measure("duplicates menu lit");
        closeMenu();
        askToDelete();
        meter.measure("duplicates question");
        whileRecycling(() => confirm(), () => meter.measure("duplicates going"));
        tryVerify(() => !Program.named("duplicateFoot"), patience, "the run has ended");
        holdScan("a");
        meter.measure("duplicates scanning");
        Surroundings.releaseDisk();
        waitForScan();
    }

    function test_diskAnalyzer_data() {
        return meter.palettes;
    }

    function test_diskAnalyzer(palette) {
        Surroundings.setDark(palette.isDark);
        open("Disk Analyzer");
        tryVerify(() => !Disk.isScanning() && Program.itemWith("tileName"), patience, "the scan has ended");
        meter.measure("disk");
        meter.measureHovered(Program.itemsWith("tileName", screen()), "disk tile hovered");
        meter.measureHovered(Program.itemsWith("entryName", screen()).slice(0, 2), "disk row hovered");
        meter.measureHovered(meter.buttons(screen()), "disk button hovered");
    }

    function sheet() {
        return Program.named("sheetClose").parent.parent;
    }

    function test_history_data() {
        return meter.palettes;
    }

    function test_history(palette) {
        Surroundings.setDark(palette.isDark);
        for (const kind of ["organize", "cleanup", "uninstall", "duplicateDelete", "ghostClean", "undo"])
            Activity.record({ kind: kind, title: `Did ${kind}`, bytes: 4096, paths: ["/home/some/a.txt"] });
        Activity.record({ kind: "cleanup", title: "Cleaned some", isFailed: true, detail: "/home/some/locked: It is locked." });
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        find("Activity History");
        tryVerify(() => Program.named("historyList")?.count > 0, patience, "the sheet is up");
        click("Cleaned some");
        meter.measure("history");
        meter.measureHovered(Program.itemsWith("entryTitle").slice(0, 2).concat(meter.buttons(sheet())), "history hovered");
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
    }

    function test_shell_data() {
        return meter.palettes;
    }

    function test_shell(palette) {
        Surroundings.setDark(palette.isDark);
        open("Dashboard");
        meter.measure("dashboard");
        meter.measureHovered(Program.itemsWith("itemTitle", sidebar()).slice(0, 3), "sidebar hovered");
        openMenu("Edit");
        meter.measure("menu");
        closeMenu();
    }
}
