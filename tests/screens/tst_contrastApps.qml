import QtQuick
import Quillmere.Screens

// Every text of the App Manager can be told from what is behind it, in each of its states and in both palettes.
AppsCase {
    id: base

    name: "ContrastApps"

    ContrastMeter {
        id: meter
        test: base
    }

    function cleanup() {
        Surroundings.releaseProbes();
        waitUntilIdle();
        compare(meter.take(), "");
        compare(Program.takeWarnings(), "");
    }

    function test_applications_data() {
        return meter.palettes;
    }

    function test_applications(palette) {
        Surroundings.setDark(palette.isDark);
        meter.measure("apps");
        choose("Alpha");
        meter.measure("apps details");
        meter.measureHovered([row("Alpha"), row("Beta")].concat(meter.buttons(screen())), "apps details hovered");
        openContextMenu(() => mouseClick(row("Beta"), 100, 10, Qt.RightButton));
        meter.measure("apps menu");
        closeMenu();
        tick("Beta");
        meter.measure("apps bulk");
        meter.measureHovered([row("Beta")].concat(meter.buttons(foot())), "apps bulk hovered");
        clickOn(Program.named("removeSelectedButton"));
        find("Uninstall 1 Apps?");
        meter.measure("apps bulk question");
        press(Qt.Key_Escape);
        tryGone("Uninstall 1 Apps?");
    }

    function test_ghosts_data() {
        return meter.palettes;
    }

    function test_ghosts(palette) {
        openGhosts();
        Surroundings.setDark(palette.isDark);
        for (const name of ["Tool", "Beta"]) {
            choose(name);
            meter.measure(`ghost ${name}`);
        }
        meter.measureHovered(rowsOf(list()).concat(rowsOf(Program.named("ghostFiles")), meter.buttons(screen())), "ghosts hovered");
        clickOn(Program.named("removeSelectedButton"));
        find("Move 2 ghost groups to Trash?");
        meter.measure("ghosts question");
        press(Qt.Key_Escape);
        tryGone("Move 2 ghost groups to Trash?");
    }

    function test_sheetAndBanners_data() {
        return meter.palettes;
    }

    function test_sheetAndBanners(palette) {
        Surroundings.setDark(palette.isDark);
        Surroundings.refuseRecycle(at("Applications/Gamma.app"));
        Surroundings.administratorFails(5, "It is not allowed.");
        askToUninstall("Alpha");
        meter.measure("sheet");
        meter.measureHovered([rowsOf(Program.named("sheetFiles"))[0], Program.named("sheetSelectAll"), Program.named("confirmAction")],
                             "sheet hovered");
        press(Qt.Key_Escape);
        tryGone("Uninstall Alpha?");
        askToUninstall("Gamma");
        confirm();
        tryVerify(() => banner() !== "", patience, "it is told");
        meter.measure("failure");
        meter.measureHovered([Program.named("retryButton"), Program.named("revealFailedButton")], "failure hovered");
        askToUninstall("Alpha");
        confirm();
        tryVerify(() => banner().startsWith("Alpha cleaned"), patience, banner());
        meter.measure("success");
    }

    function test_scansAndNothing_data() {
        return meter.palettes;
    }

    function test_scansAndNothing(palette) {
        Surroundings.setDark(palette.isDark);
        Surroundings.holdProbes();
        clickOn(Program.named("scanButton"));
        meter.measure("scanning");
        meter.measureHovered([Program.named("stopButton")], "scanning hovered");
        Surroundings.releaseProbes();
        waitUntilIdle();
        Apps.removeGhosts();
        openGhosts();
        clickOn(Program.named("scanButton"));
        waitUntilIdle();
        meter.measure("no ghosts");
    }
}
