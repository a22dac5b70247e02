import QtQuick
import Quillmere.Screens

// The Disk Analyzer's "Move to Trash", and what a person may do while a file is on its way.
AnalyzerCase {
    name: "DiskTrash"

    function init() {
        clearAway();
        Surroundings.userWillCancel();
        open("Dashboard");
        open("Disk Analyzer");
        waitForScan();
        const twins = Duplicates.makeTwins();
        analyze(twins + "/a");
        find("CONTENTS (6 items)");
        Program.forget();
    }

    function chooseTrash(name) {
        openRowMenu(name);
        chooseInContext("Move to Trash");
    }

    function test_movesTheEntry() {
        const path = location() + "/report.pdf";
        chooseTrash("report.pdf");
        tryVerify(() => !Surroundings.exists(path), patience, "the file is gone");
        compare(Surroundings.recycled(), path);
        click("Rescan");
        find("CONTENTS (5 items)");
        verify(!row("report.pdf"));
    }

    function test_anotherScreenMayBeSelectedMeanwhile() {
        const path = location() + "/report.pdf";
        whileRecycling(() => chooseTrash("report.pdf"), () => {
            open("Organizer");
            open("Dashboard");
        });
        tryVerify(() => !Surroundings.exists(path), patience, "the file is gone");
        compare(Program.selectedScreen(), "Dashboard");
        open("Disk Analyzer");
        waitForScan();
        click("Rescan");
        find("CONTENTS (5 items)");
    }

    function test_takesNoSecondMoveMeanwhile() {
        const folder = location();
        whileRecycling(() => chooseTrash("report.pdf"), () => {
            openRowMenu("plain");
            verify(Program.menuLines().endsWith("Move to Trash off"));
            closeMenu();
        });
        compare(Surroundings.recycled(), folder + "/report.pdf");
        verify(Surroundings.exists(folder + "/plain"));
    }

    function test_anotherFolderMayBeAnalyzedMeanwhile() {
        const folder = location();
        whileRecycling(() => chooseTrash("report.pdf"), () => {
            analyze(home);
            find("CONTENTS (6 items)");
        });
        tryVerify(() => !Surroundings.exists(folder + "/report.pdf"), patience, "the file is gone");
        verify(row("notes.txt"));
    }
}
