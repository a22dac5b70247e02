import QtQuick
import Quillmere.Screens

// The banner of tools that ran without access to the protected folders, which nobody has here.
ScreenCase {
    name: "AccessBanner"

    function init() {
        clearAway();
        Activity.setFullAccess(false);
        Duplicates.scanOnly([Surroundings.at("hollow")], 1024);
        open("Dashboard");
        Program.forget();
    }

    function banner() {
        return Program.named("accessBanner");
    }

    function openAnalyzer() {
        open("Disk Analyzer");
        tryVerify(() => !Disk.isScanning() && banner(), patience, "the banner shows");
        Program.settle();
    }

    function scan() {
        clickOn(Program.named("scanButton"));
        tryVerify(() => Program.named("scanButton").enabled, patience, "the scan has ended");
        Program.settle();
    }

    function test_tellsWhatToDo() {
        openAnalyzer();
        compare(Program.texts(banner()).split("\n").sort(),
                ["Open System Settings", "Quillmere needs Full Disk Access to read protected folders. "
                 + "Find Quillmere in the list and toggle the switch on.", "Some folders couldn't be scanned"]);
        Program.picture("banner");
    }

    function test_buttonOpensTheSettings_data() {
        return [
            { tag: "click", how: () => clickOn(Program.named("bannerButton")) },
            { tag: "key", how: () => {
                tabTo("the button", item => item === Program.named("bannerButton"));
                press(Qt.Key_Return);
            } },
        ];
    }

    function test_buttonOpensTheSettings(data) {
        openAnalyzer();
        data.how();
        compare(Surroundings.settingsPage(), "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles");
        verify(banner());
    }

    // What is hidden stays hidden while the program runs, so that one test tells all of it.
    function test_eachToolHasItsOwnUntilItIsHidden() {
        openAnalyzer();
        open("Duplicates");
        verify(!banner());
        const top = Program.textItem("Scan Directories").mapToItem(null, 0, 0).y;
        scan();
        tryVerify(() => banner(), patience, "the banner shows");
        Program.settle();
        verify(Program.textItem("Scan Directories").mapToItem(null, 0, 0).y >= top + banner().height);
        Program.picture("banner-duplicates");
        mouseMove(Program.named("bannerHide"));
        find("Hide for this session");
        clickOn(Program.named("bannerHide"));
        tryVerify(() => !banner(), patience, "the banner goes");
        Program.settle();
        compare(Program.textItem("Scan Directories").mapToItem(null, 0, 0).y, top);
        scan();
        open("Organizer");
        open("Duplicates");
        verify(!banner());
        openAnalyzer();
        tabTo("the button that hides it", item => item === Program.named("bannerHide"));
    }

    function test_smartCleanupHasItsOwnToo() {
        Cleanup.fill();
        open("Cleanup");
        tryVerify(() => Program.named("scanButton").enabled, patience, "no scan is on its way");
        scan();
        tryVerify(() => banner() && Program.named("cleanupList")?.count > 0, patience, "the banner shows");
        const topOfList = () => Program.named("cleanupList").mapToItem(null, 0, 0).y;
        const top = topOfList();
        verify(top > banner().mapToItem(null, 0, banner().height).y);
        Program.picture("banner-cleanup");
        clickOn(Program.named("bannerHide"));
        tryVerify(() => !banner(), patience, "the banner goes");
        Program.settle();
        verify(topOfList() < top);
    }
}
