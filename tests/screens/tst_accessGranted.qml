import QtQuick
import Quillmere.Screens

// The banner once access to the protected folders has come while the program runs.
ScreenCase {
    name: "AccessGranted"

    property bool isGranted: false
    readonly property string title: "Full Disk Access enabled"

    function banner() {
        return Program.named("accessBanner");
    }

    // The grant comes once, after the way to the settings.
    function init() {
        clearAway();
        open("Dashboard");
        if (!isGranted) {
            isGranted = true;
            Activity.setFullAccess(false);
            open("Disk Analyzer");
            find("Some folders couldn't be scanned", screen());
            clickOn(Program.named("bannerButton"));
            Activity.setFullAccess(true);
            find(title, screen());
        }
        Program.forget();
    }

    function test_everyToolTellsOfIt_data() {
        return [{ tag: "Disk Analyzer" }, { tag: "Duplicates" }];
    }

    function test_everyToolTellsOfIt(row) {
        open(row.tag);
        compare(Program.texts(banner()).split("\n").sort(),
                [title, "Restart Quillmere to start using protected folders.", "Restart now"].sort());
        verify(!Program.named("bannerHide"));
        Program.picture("banner-granted-" + row.tag);
    }

    function test_buttonStartsTheProgramAnew() {
        open("Duplicates");
        mouseMove(Program.named("bannerButton"));
        find("Quit and reopen Quillmere so the new permission takes effect");
        clickOn(Program.named("bannerButton"));
        tryVerify(() => Surroundings.exists(Surroundings.at("relaunched")), patience, "the shell is asked for the start");
        tryVerify(() => Program.exits() > 0, patience, "the program ends");
    }
}
