import QtQuick
import Quillmere.Screens

// What the tests of the Disk Analyzer share. Each begins at the top of the finished tree of the home folder.
ScreenCase {
    id: base

    readonly property string home: Surroundings.at("home")

    function init() {
        clearAway();
        Surroundings.userWillCancel();
        open("Dashboard");
        open("Disk Analyzer");
        waitForScan();
        if (location() !== home)
            analyze(home);
        restPointer();
        Program.forget();
    }

    // The path of the entry on view, as the tooltip of the file viewer's button tells it.
    function location() {
        return told(Program.named("finderButton"), "tip");
    }

    function waitForScan() {
        tryVerify(() => !Disk.isScanning() && location() !== "", patience, "the scan has ended");
        Program.settle();
    }

    // Changes to another folder, by the button and the panel.
    function analyze(folder) {
        verify(location() !== folder);
        Surroundings.userWillChoose(folder);
        click("Change Folder");
        Surroundings.userWillCancel();
        tryVerify(() => !Disk.isScanning() && location() === folder, patience, `${folder} is on view`);
        Program.settle();
    }

    // Starts a scan of the home folder whose first probe waits until `releaseProbes`.
    function holdScan() {
        Surroundings.holdProbes();
        click("Rescan");
        tryVerify(() => Disk.probeCount() === 1, patience, "a probe is at work");
    }

    function table() {
        return Program.named("contentsList");
    }

    function row(name) {
        return Program.itemWith("entryName", table(), name);
    }

    function openRowMenu(name) {
        openContextMenu(() => mouseClick(row(name), row(name).width / 3, row(name).height / 2, Qt.RightButton));
    }

    function map() {
        return Program.named("treemap");
    }

    function tile(name) {
        const found = Program.itemWith("tileName", map(), name);
        verify(found, `there is a tile ${name}`);
        return found;
    }

    // Goes into a folder by its row of the table.
    function drill(name, items) {
        click(name, table());
        tryVerify(() => Program.texts(Program.named("breadcrumbList")).endsWith(name), patience, `${name} is on view`);
        find(`CONTENTS (${items} items)`);
    }

    function breadcrumbs() {
        Program.settle();
        return Program.texts(Program.named("breadcrumbList")).split("\n").filter(name => name !== "");
    }

    // Up to the first row, then down to the row of that name.
    function walkTo(name) {
        Program.settle();
        verify(table().activeFocus, `the table has the keyboard, not\n${Program.focusPath()}`);
        for (let i = 0; i < table().count; ++i)
            press(Qt.Key_Up);
        for (let i = 0; i <= table().count && table().currentItem?.entryName !== name; ++i)
            press(Qt.Key_Down);
        compare(table().currentItem.entryName, name);
    }
}
