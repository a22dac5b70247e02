import QtQuick
import Quillmere.Screens

// What the tests of Smart Cleanup share. Each begins with a fresh scan of a home folder with something in five categories.
ScreenCase {
    id: base

    readonly property int usualWidth: 1280
    readonly property int usualHeight: 800

    readonly property var usualCategories: ["Browser Caches", "Log Files", "Old Downloads", "Trash", "Empty Folders"]

    function init() {
        clearAway();
        Surroundings.recycleIntoHome();
        Cleanup.fill();
        open("Dashboard");
        open("Cleanup");
        waitForScan();
        scan();
        compare(categories(), usualCategories);
        restPointer();
        Program.forget();
    }

    function cleanup() {
        Surroundings.releaseDisk();
        tryVerify(() => !Cleanup.isCleaning(), patience, "no cleaning is left running");
        Program.window.width = usualWidth;
        Program.window.height = usualHeight;
        compare(Program.takeWarnings(), "");
    }

    function scanButton() {
        return Program.named("scanButton");
    }

    function waitForScan() {
        tryVerify(() => !Program.named("cleanupProgress") && scanButton()?.enabled, patience, "the scan has ended");
        Program.settle();
    }

    function scan() {
        clickOn(scanButton());
        waitForScan();
    }

    // Starts a scan that waits as it looks for empty folders, until `releaseDisk`.
    function holdScan() {
        Surroundings.holdDisk(Surroundings.at("home/Downloads"));
        clickOn(scanButton());
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the scan waits");
        Program.settle();
    }

    // The list; null while it is not on view.
    function list() {
        return Program.named("cleanupList");
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

    function titlesOf(kind) {
        return rows().filter(row => row.kind === kind).map(row => row.title);
    }

    function categories() {
        return titlesOf("category");
    }

    // The row with that title, of a category or a file.
    function row(title) {
        const found = rows().find(candidate => candidate.title === title);
        verify(found, `there is a row ${title}; there are:\n${rows().map(each => each.title).join("\n")}`);
        return found;
    }

    function tickOf(title) {
        return Program.named(row(title).kind === "file" ? "fileTick" : "categoryTick", row(title));
    }

    function isTicked(title) {
        Program.settle();
        return told(tickOf(title), "isTicked");
    }

    function tick(title) {
        clickOn(tickOf(title));
    }

    // Opens the preview of a category, unless it is open, and waits for its files.
    function openPreview(title) {
        if (!told(row(title), "isExpanded"))
            clickOn(Program.named("previewButton", row(title)));
        tryVerify(() => !rows().some(each => each.kind === "status" && each.title.startsWith("Loading")), patience,
                  "the preview is there");
        Program.settle();
    }

    // Says of a category that needs it that its files were looked through.
    function review(title) {
        openPreview(title);
        const note = rows()[rows().indexOf(row(title)) + 1];
        compare(note.kind, "note");
        clickOn(Program.named("reviewedSwitch", note));
    }

    // Ticks a category and waits until its files are picked.
    function tickAll(title) {
        tick(title);
        verify(isTicked(title));
    }

    function figure(label) {
        Program.settle();
        return Program.itemWith("label", screen(), label)?.value ?? null;
    }

    function foot() {
        return Program.named("cleanupFoot");
    }

    function footText() {
        Program.settle();
        return foot() ? told(Program.named("footText"), "text") : "";
    }

    function cleanButton() {
        return Program.named("cleanButton");
    }

    function askToClean() {
        clickOn(cleanButton());
        find("Confirm Cleanup");
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
    }

    // Cleans what is ticked, and waits for the scan that follows.
    function clean() {
        askToClean();
        clickOn(Program.named("confirmAction"));
        tryGone("Confirm Cleanup");
        tryVerify(() => !Cleanup.isCleaning() && !foot(), patience, "the cleaning has ended, and its scan");
        waitForScan();
    }
}
