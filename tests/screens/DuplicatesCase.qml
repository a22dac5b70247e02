import QtQuick
import Quillmere.Screens

// What the tests of the Duplicate Finder share. Each begins with the groups of a fresh folder of equal files, in a window
// that is high enough for all of them. Their files are named as "a/photo.JPG".
ScreenCase {
    id: base

    readonly property int usualWidth: 1280
    readonly property int usualHeight: 800
    readonly property int ampleHeight: 1300
    readonly property int usualMinSize: 100 * 1024

    // The first of each group stays at first.
    readonly property var usuallyGoing: ["b/photo.jpg", "c/photo.png", "b/film.mov", "c/film.mov", "b/report.pdf",
                                         "b/plain.zip"]

    property string twins

    function init() {
        clearAway();
        Program.window.height = ampleHeight;
        Surroundings.userWillCancel();
        twins = Duplicates.makeTwins();
        Duplicates.scanOnly(Array.from(["a", "b", "c"], folder => `${twins}/${folder}`), usualMinSize);
        open("Dashboard");
        open("Duplicates");
        scan();
        compare(list().count, 14);
        restPointer();
        Program.forget();
    }

    function cleanup() {
        Surroundings.releaseDisk();
        Program.window.width = usualWidth;
        Program.window.height = usualHeight;
        compare(Program.takeWarnings(), "");
    }

    function scanButton() {
        return Program.named("scanButton");
    }

    function progress() {
        return Program.named("duplicateProgress");
    }

    function waitForScan() {
        tryVerify(() => !progress() && scanButton()?.enabled, patience, "the scan has ended");
        Program.settle();
    }

    function scan() {
        clickOn(scanButton());
        waitForScan();
    }

    // Starts a scan that waits at the folder or file of that name until `releaseDisk`.
    function holdScan(name) {
        Surroundings.holdDisk(`${twins}/${name}`);
        clickOn(scanButton());
        tryVerify(() => Surroundings.isDiskHeld(), patience, `the scan waits at ${name}`);
        Program.settle();
    }

    // The list of groups; null while it is not on view.
    function list() {
        return Program.named("duplicateList");
    }

    // The rows that the list has made, in their order.
    function rows() {
        Program.settle();
        const holder = list();
        const made = [];
        for (let i = 0; i < (holder?.count ?? 0); ++i) {
            const row = holder.itemAtIndex(i);
            if (row)
                made.push(row);
        }
        return made;
    }

    function path(name) {
        return `${twins}/${name}`;
    }

    function nameOf(row) {
        return row.detail.slice(twins.length + 1);
    }

    function fileRows() {
        return rows().filter(row => !row.isHead);
    }

    function file(name) {
        const found = fileRows().find(row => nameOf(row) === name);
        verify(found, `there is a row of ${name}`);
        return found;
    }

    function head(title) {
        const found = rows().find(row => row.isHead && row.title === title);
        verify(found, `there is a group ${title}`);
        return found;
    }

    // The groups on view, by the title at their head.
    function groups() {
        return rows().filter(row => row.isHead).map(row => row.title);
    }

    // The files that are set to go.
    function going() {
        return fileRows().filter(row => !row.isKept).map(nameOf);
    }

    // The files that are no longer in their place.
    function gone() {
        return usuallyGoing.concat(["a/photo.JPG", "a/film.mov", "a/report.pdf", "a/plain"]).filter(
                    name => !Surroundings.exists(path(name)));
    }

    // Sets one file of a group of three to go, and no other.
    function onlyPhoto() {
        click("Select None", screen());
        clickFile("b/photo.jpg");
    }

    function clickFile(name) {
        clickOn(file(name));
    }

    // The chip of that filter.
    function chip(filter) {
        return Program.itemWith("label", screen(), filter[0].toUpperCase() + filter.slice(1));
    }

    // The text of the figure with that label; null while there is none.
    function figure(label) {
        Program.settle();
        return Program.itemWith("label", screen(), label)?.value ?? null;
    }

    function foot() {
        return Program.named("duplicateFoot");
    }

    function footText() {
        Program.settle();
        return foot() ? Program.texts(foot()).split("\n")[0] : "";
    }

    function openFileMenu(name) {
        const row = file(name);
        openContextMenu(() => mouseClick(row, row.width / 3, row.height / 2, Qt.RightButton));
    }

    function chooseForFile(name, line) {
        openFileMenu(name);
        chooseInContext(line);
    }

    // The keyboard is the list's, and its first row the current one.
    function focusList() {
        tabTo("the list", () => list().activeFocus);
        compare(list().currentIndex, 0);
    }

    function askToDelete() {
        clickOn(Program.named("trashButton"));
        find("Confirm Deletion");
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
    }

    function confirm() {
        clickOn(Program.named("confirmAction"));
    }

    // Moves all that is set to go to the Trash.
    function moveToTrash() {
        askToDelete();
        confirm();
        tryVerify(() => !Program.named("trashButton") || Program.named("trashButton").enabled, patience, "the run has ended");
        tryGone("Confirm Deletion");
        Program.settle();
    }
}
