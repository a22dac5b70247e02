import QtQuick
import Quillmere.Screens

// The App Manager's removals: the sheet of one application, the questions before several, and what is told afterwards.
AppsCase {
    name: "AppRemoval"

    function sheetFiles() {
        return Program.named("sheetFiles");
    }

    function test_sheetTellsWhatGoes() {
        askToUninstall("Alpha");
        find("The app and selected associated files will be moved to Trash.");
        find("Associated Files");
        find("Total to remove:");
        compare(rowsOf(sheetFiles()).map(file => file.text), ["net.first.alpha", "net.first.alpha.plist", "Alpha"]);
        const whole = told(Program.named("sheetTotal"), "text");
        Program.picture("apps-sheet");
        clickOn(Program.named("sheetSelectNone"));
        verify(rowsOf(sheetFiles()).every(file => !file.isTicked));
        verify(told(Program.named("sheetTotal"), "text") !== whole);
        clickOn(Program.named("sheetSelectAll"));
        compare(told(Program.named("sheetTotal"), "text"), whole);
        press(Qt.Key_Escape);
        tryGone("Uninstall Alpha?");
        compare(Surroundings.recycled(), "");
    }

    function test_oneGoesWithTheFilesThatAreTicked() {
        askToUninstall("Alpha");
        clickOn(row("net.first.alpha.plist", sheetFiles()));
        confirm();
        compare(Surroundings.recycled(), `${at("Applications/Alpha.app")}\n${at("home/Library/Caches/net.first.alpha")}\n`
                + at("home/Library/Application Support/Alpha"));
        tryCompare(list(), "count", 2, patience);
        compare(names(), ["Beta", "Gamma"]);
        verify(banner().startsWith("Alpha cleaned\n3 items moved to Trash · "), banner());
        find("Select an app", screen());
        Program.picture("apps-done");
    }

    function test_oneThatRunsStays() {
        Surroundings.setRunning([at("Applications/Beta.app/Contents/MacOS/Beta")]);
        askToUninstall("Beta");
        confirm();
        compare(banner(), "Failed: Beta\nBeta is currently running. Quit it first, then try again.");
        compare(Surroundings.recycled(), "");
        Program.picture("apps-running");
    }

    function test_whatIsRefusedIsAskedOfAnAdministrator() {
        Surroundings.refuseRecycle(at("Applications/Gamma.app"));
        Surroundings.administratorFails(5, "It is not allowed.");
        const top = row("Alpha").mapToItem(null, 0, 0).y;
        askToUninstall("Gamma");
        confirm();
        tryVerify(() => banner() !== "", patience, "it is told");
        compare(banner(), "Failed: Gamma\nCouldn't remove the app bundle: It is not allowed.");
        compare(row("Alpha").mapToItem(null, 0, 0).y, top); // no row moves for it
        compare(told(Program.named("revealFailedButton"), "tip"),
                "Open the app in Finder so you can drag it to the Trash manually.");
        Program.picture("apps-failed");
        clickOn(Program.named("revealFailedButton"));
        compare(Surroundings.calls(), `reveal ${at("Applications/Gamma.app")}`);
        Surroundings.administratorAgrees();
        clickOn(Program.named("retryButton"));
        waitUntilIdle();
        tryVerify(() => banner().startsWith("Gamma cleaned\n1 items moved to Trash · "), patience, banner());
        tryCompare(list(), "count", 2, patience);
    }

    function test_failureCanBeSentAway() {
        Surroundings.refuseRecycle(at("Applications/Gamma.app"));
        Surroundings.administratorFails(5, "It is not allowed.");
        askToUninstall("Gamma");
        confirm();
        tryVerify(() => banner() !== "", patience, "it is told");
        clickOn(Program.itemWith("label", Program.named("appBanner"), "Dismiss"));
        compare(banner(), "");
    }

    function test_severalGoAfterAQuestion() {
        tick("Alpha");
        tick("Beta");
        compare(footText(), "2 apps selected");
        find("Each app is moved to Trash with its associated cache, preferences, container, and log files.", screen());
        Program.picture("apps-bulk");
        const button = Program.named("removeSelectedButton");
        verify(told(button, "text").startsWith("Uninstall 2 apps ("));
        clickOn(button);
        find("Uninstall 2 Apps?");
        Program.picture("apps-bulk-question");
        confirm();
        tryCompare(list(), "count", 1, patience);
        verify(banner().startsWith("2 apps cleaned\n5 items moved to Trash · "), banner());
        verify(!foot());
    }

    function test_detailsShowThoughOthersAreTicked() {
        tick("Alpha");
        choose("Beta");
        find("Uninstall Beta", screen());
        compare(footText(), "1 apps selected");
        tick("Gamma");
        verify(!Program.named("uninstallButton"));
        click("Clear selection", foot());
        find("Uninstall Beta", screen());
    }

    function test_selectionIsCleared() {
        tick("Alpha");
        click("Clear selection", foot());
        verify(!isTicked("Alpha") && !foot());
    }

    function test_ghostsGoAfterAWarning() {
        openGhosts();
        clickOn(Program.named("removeSelectedButton"));
        find("Move 2 ghost groups to Trash?");
        verify(Program.texts().includes("1 of these are tagged \"LOOKS INSTALLED\""), "it warns");
        Program.picture("apps-ghost-question");
        clickOn(Program.named("confirmCancel"));
        tryGone("Move 2 ghost groups to Trash?");
        tick("Beta");
        clickOn(Program.named("removeSelectedButton"));
        find("Move 1 ghost group to Trash?");
        confirm();
        tryCompare(list(), "count", 1, patience);
        compare(names(), ["Beta"]);
        compare(banner(), "");
        verify(Surroundings.exists(at("home/Library/Containers/org.departed.beta")));
        verify(!Surroundings.exists(at("home/Library/Caches/org.vanished.tool")));
    }

    function test_filesOfOneGhostGo() {
        openGhosts();
        choose("Tool");
        clickOn(Program.named("removeFilesButton"));
        waitUntilIdle();
        tryVerify(() => banner().startsWith("Tool cleaned\n3 items moved to Trash · "), patience, banner());
        tryCompare(list(), "count", 1, patience);
        find("Select a ghost app", screen());
    }

    function test_allAndNoGhostsAreTicked() {
        openGhosts();
        clickOn(Program.named("selectNoGhosts"));
        verify(!isTicked("Tool") && !isTicked("Beta") && !foot());
        clickOn(Program.named("selectAllGhosts"));
        verify(isTicked("Tool") && isTicked("Beta"));
    }

    function test_restsWhileItRemoves() {
        tick("Alpha");
        clickOn(Program.named("removeSelectedButton"));
        find("Uninstall 1 Apps?");
        whileRecycling(() => clickOn(Program.named("confirmAction")), () => {
            verify(!Program.named("removeSelectedButton").enabled);
            verify(!Program.named("scanButton").enabled);
            verify(!Program.named("appTick", row("Beta")).enabled);
            Program.picture("apps-removing");
        });
        waitUntilIdle();
        tryVerify(() => banner().startsWith("1 apps cleaned"), patience, banner());
    }
}
