import QtQuick
import Quillmere.Screens

// Every text can be told from what is behind it, on the screens as they stand and with what the pointer and the keys do to
// them, in both palettes.
DuplicatesCase {
    name: "Contrast"

    readonly property var palettes: [{ tag: "dark", isDark: true }, { tag: "light", isDark: false }]

    property var faint: []

    // Whatever falls short is told at once, at the end.
    function cleanup() {
        Program.window.width = usualWidth;
        Program.window.height = usualHeight;
        const found = faint;
        faint = [];
        compare(found.join("\n"), "");
        compare(Program.takeWarnings(), "");
    }

    function verifyTexts(where) {
        Program.settle();
        Program.picture(`contrast-${where}`);
        const texts = Program.faintTexts();
        if (texts !== "")
            faint.push(`${where}: ${texts}`);
    }

    // Measures with the pointer on each of the items.
    function verifyHovered(items, where) {
        for (let i = 0; i < items.length; ++i) {
            mouseMove(items[i]);
            verifyTexts(`${where} ${i}`);
        }
        restPointer();
    }

    // What takes clicks on the screen, one of each word.
    function buttons(under) {
        const words = [];
        return Program.itemsWith("down", under).filter(item => {
            const isNew = item.enabled && !words.includes(item.text);
            words.push(item.text);
            return isNew;
        });
    }

    function test_duplicateFinder_data() {
        return palettes;
    }

    function test_duplicateFinder(palette) {
        Surroundings.setDark(palette.isDark);
        verifyTexts("duplicates");
        verifyHovered([file("a/photo.JPG"), file("b/photo.jpg"), file("c/photo.png")].concat(buttons(screen())), "duplicates hovered");
        onlyPhoto(); // the rest are kept; b/photo.jpg is the current row
        verifyTexts("duplicates selected");
        verifyHovered([file("b/photo.jpg")], "duplicates selected and hovered");
        for (const name of ["a/photo.JPG", "c/photo.png"])
            clickFile(name);
        verifyTexts("duplicates nothing kept");
        openFileMenu("b/photo.jpg");
        verifyTexts("duplicates menu");
        press(Qt.Key_Down);
        verifyTexts("duplicates menu lit");
        closeMenu();
        askToDelete();
        verifyTexts("duplicates question");
        whileRecycling(() => confirm(), () => verifyTexts("duplicates going"));
        tryVerify(() => !Program.named("duplicateFoot"), patience, "the run has ended");
        holdScan("a");
        verifyTexts("duplicates scanning");
        Surroundings.releaseDisk();
        waitForScan();
    }

    function test_diskAnalyzer_data() {
        return palettes;
    }

    function test_diskAnalyzer(palette) {
        Surroundings.setDark(palette.isDark);
        open("Disk Analyzer");
        tryVerify(() => !Disk.isScanning() && Program.itemWith("tileName"), patience, "the scan has ended");
        verifyTexts("disk");
        verifyHovered(Program.itemsWith("tileName", screen()), "disk tile hovered");
        verifyHovered(Program.itemsWith("entryName", screen()).slice(0, 2), "disk row hovered");
        verifyHovered(buttons(screen()), "disk button hovered");
    }

    function sheet() {
        return Program.named("sheetClose").parent.parent;
    }

    function test_history_data() {
        return palettes;
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
        verifyTexts("history");
        verifyHovered(Program.itemsWith("entryTitle").slice(0, 2).concat(buttons(sheet())), "history hovered");
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
    }

    function test_shell_data() {
        return palettes;
    }

    function test_shell(palette) {
        Surroundings.setDark(palette.isDark);
        open("Dashboard");
        verifyTexts("dashboard");
        verifyHovered(Program.itemsWith("itemTitle", sidebar()).slice(0, 3), "sidebar hovered");
        openMenu("Edit");
        verifyTexts("menu");
        closeMenu();
    }
}
