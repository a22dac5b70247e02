import QtQuick
import Quillmere.Screens

// While the Duplicate Finder moves files to the Trash: what it tells of it, and what a person may do meanwhile.
DuplicatesCase {
    name: "DuplicateRun"

    function beginRun() {
        askToDelete();
        confirm();
    }

    function test_tellsHowFarItIs() {
        whileRecycling(beginRun, () => {
            tryVerify(() => footText() === "Moving files to the Trash: 0 of 6", patience, "the run is told");
            verify(!Program.named("trashButton").enabled);
            verify(!Program.textItem("Confirm Deletion"));
            Program.picture("duplicates-trashing");
        });
        tryVerify(() => !foot(), patience, "the run has ended");
        compare(gone(), usuallyGoing);
    }

    // Numbers of rows change when some go, so a menu of before would be for another file.
    function test_menuThatIsOpenAsTheRunEndsCloses() {
        whileRecycling(beginRun, () => {
            list().forceActiveFocus();
            list().currentIndex = 1;
            openContextMenu(() => press(Qt.Key_Menu));
        });
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
        compare(gone(), usuallyGoing);
    }

    function test_menuThatIsOpenAsTheRunEndsFollowsItsRow() {
        onlyPhoto();
        whileRecycling(beginRun, () => {
            list().forceActiveFocus();
            list().currentIndex = file("a/film.mov").index;
            openContextMenu(() => press(Qt.Key_Menu));
        });
        tryVerify(() => list().count === 13, patience, "the row of the file has gone");
        chooseInContext("Copy Path");
        compare(Surroundings.clipboard(), path("a/film.mov"));
    }

    function test_nothingElseCanBeDoneMeanwhile() {
        whileRecycling(beginRun, () => {
            clickFile("a/film.mov");
            openFileMenu("b/film.mov");
            verify(Program.menuLines().endsWith("Keep This One off\nKeep Only This (mark others for deletion) off"));
            closeMenu();
            for (const text of ["Rescan", "Select None", "Keep Newest", "Move to Trash"]) {
                verify(!Program.itemWith("text", screen(), text).enabled, text);
                clickOn(Program.itemWith("text", screen(), text));
            }
            click("Newest", head("photo.JPG"));
            press(Qt.Key_R, Qt.ControlModifier);
            focusListByHand();
            press(Qt.Key_Space);
            verify(!progress());
            compare(going(), usuallyGoing);
            clickOn(chip("documents")); // the filter may be
            compare(groups(), ["report.pdf"]);
            clickOn(chip("all"));
            click("Hide Settings", screen());
        });
        tryVerify(() => !foot(), patience, "the run has ended");
        compare(gone(), usuallyGoing);
        compare(Surroundings.recycled(), usuallyGoing.map(path).join("\n"));
    }

    function focusListByHand() {
        list().forceActiveFocus();
        list().currentIndex = file("b/film.mov").index;
    }

    function test_anotherScreenMayBeSelectedMeanwhile() {
        whileRecycling(beginRun, () => {
            open("Organizer");
            open("Disk Analyzer");
            open("Duplicates");
            tryVerify(() => footText() === "Moving files to the Trash: 0 of 6", patience, "the run is told again");
            verify(!scanButton().enabled);
            clickFile("a/film.mov");
            open("Dashboard");
        });
        tryVerify(() => gone().length === 6, patience, "all are gone");
        compare(gone(), usuallyGoing);
        compare(Program.selectedScreen(), "Dashboard");
        open("Duplicates");
        find("Configure scan directories above and click Start Scan", screen());
    }

    function test_screenThatComesBackMeanwhileShowsTheEnd() {
        onlyPhoto();
        whileRecycling(beginRun, () => {
            open("Organizer");
            open("Duplicates");
        });
        tryVerify(() => !foot(), patience, "the run has ended");
        compare(fileRows().length, 9);
        clickFile("c/photo.png");
        compare(going(), ["c/photo.png"]);
    }

    function test_scopeMayChangeMeanwhile() {
        onlyPhoto();
        whileRecycling(beginRun, () => clickOn(Program.named("removeScanPath")));
        tryVerify(() => !foot(), patience, "the run has ended");
        compare(told(Program.named("scanPathList"), "count"), 2);
        compare(gone(), ["b/photo.jpg"]);
    }
}
