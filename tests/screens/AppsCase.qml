import QtQuick
import Quillmere.Screens

// What the tests of the App Manager share. Each begins on its first tab, with three applications and two ghosts found anew.
ScreenCase {
    id: base

    readonly property int usualWidth: 1280
    readonly property int usualHeight: 800

    function init() {
        clearAway();
        Surroundings.recycleIntoHome();
        Surroundings.setRunning([]);
        Surroundings.administratorAgrees();
        Apps.fill();
        open("Dashboard");
        Apps.rescanAll();
        waitUntilIdle();
        open("App Manager");
        waitUntilIdle();
        compare(names(), ["Alpha", "Beta", "Gamma"]);
        restPointer();
        Program.forget();
    }

    function cleanup() {
        Surroundings.releaseProbes();
        Surroundings.releaseDisk();
        waitUntilIdle();
        Program.window.width = usualWidth;
        Program.window.height = usualHeight;
        compare(Program.takeWarnings(), "");
    }

    function waitUntilIdle() {
        tryVerify(() => !Apps.isBusy(), patience, "no scan and no removal is left running");
        Program.settle();
    }

    function at(relative) {
        return Surroundings.at(relative);
    }

    function openGhosts() {
        click("Ghost Files", Program.named("appTabs"));
        waitUntilIdle();
    }

    // The list on view; null while there is none.
    function list() {
        return Program.named("installedList") ?? Program.named("ghostList");
    }

    // The rows that a list has made, in their order.
    function rowsOf(holder) {
        Program.settle();
        const made = [];
        for (let i = 0; i < (holder?.count ?? 0); ++i) {
            const row = holder.itemAtIndex(i);
            if (row)
                made.push(row);
        }
        return made;
    }

    function names() {
        return rowsOf(list()).map(row => row.text);
    }

    // The row with that name, of the list on view or of another one.
    function row(name, holder) {
        const found = rowsOf(holder ?? list()).find(candidate => candidate.text === name);
        verify(found, `there is a row ${name}; there are:\n${rowsOf(holder ?? list()).map(each => each.text).join("\n")}`);
        return found;
    }

    function tick(name) {
        clickOn(Program.named("appTick", row(name)));
    }

    function isTicked(name) {
        Program.settle();
        return told(row(name), "isTicked");
    }

    function figure(label) {
        Program.settle();
        return Program.itemWith("label", screen(), label)?.value ?? null;
    }

    // Shows an application or a ghost in the pane.
    function choose(name) {
        clickOn(row(name));
        Program.settle();
    }

    function foot() {
        return Program.named("appFoot");
    }

    function footText() {
        Program.settle();
        return foot() ? told(Program.named("footText", foot()), "text") : "";
    }

    function banner() {
        Program.settle();
        const line = Program.named("appBanner");
        return line ? `${told(line, "text")}\n${told(line, "detail")}` : "";
    }

    // Opens the sheet of the application in the pane.
    function askToUninstall(name) {
        choose(name);
        clickOn(Program.named("uninstallButton"));
        find(`Uninstall ${name}?`);
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
    }

    function confirm() {
        clickOn(Program.named("confirmAction"));
        waitUntilIdle();
        tryVerify(() => !Program.named("confirmAction"), patience, "the question is gone");
    }
}
