import QtQuick
import Quillmere.Screens

// Smart Cleanup's run: the question, what is left afterwards, the entry in the log, and what rests meanwhile.
CleanupCase {
    name: "CleanupRun"

    function test_asksFirst() {
        clickOn(Program.named("selectAllButton"));
        askToClean();
        const total = figure("Selected");
        find(`Cleaning:\n  • Browser Caches\n  • Log Files\n\nTotal: ${total}\n\n` +
             "Files will be moved to Trash. You can restore them if needed.");
        compare(told(Program.named("confirmAction"), "text"), `Clean ${total}`);
        Program.picture("cleanup-confirm");
        clickOn(Program.named("confirmCancel"));
        tryGone("Confirm Cleanup");
        compare(Surroundings.recycled(), "");
        compare(Cleanup.names("Library/Logs"), "big.log\nmiddle.log\nsmall.log");
        verify(cleanButton().enabled);
    }

    function test_noMeansNo_data() {
        return [
            { tag: "Escape", key: Qt.Key_Escape },
            { tag: "Return on Cancel", key: Qt.Key_Return },
        ];
    }

    function test_noMeansNo(data) {
        tick("Log Files");
        askToClean();
        press(data.key);
        tryGone("Confirm Cleanup");
        verify(!Cleanup.isCleaning());
        compare(Surroundings.recycled(), "");
        verify(isTicked("Log Files"));
    }

    function newestEntry() {
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        find("Activity History");
        tryVerify(() => Program.named("historyList")?.itemAtIndex(0), patience, "there is an entry");
        return Program.named("historyList").itemAtIndex(0);
    }

    function closeHistory() {
        press(Qt.Key_Escape);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
    }

    function test_cleansThePickedFilesAlone() {
        openPreview("Log Files");
        clickOn(row("big.log"));
        compare(footText(), "1 categories selected · 300 KB to clean");
        compare(told(cleanButton(), "text"), "Clean 300 KB");
        clean();
        compare(Cleanup.names("Library/Logs"), "middle.log\nsmall.log");
        compare(Cleanup.names(".Trash"), "big.log\nthrown away");
        find("2 files", row("Log Files"));
        verify(!categories().some(isTicked));
        openPreview("Trash");
        compare(titlesOf("file"), ["big.log", "thrown away"]);
        const entry = newestEntry();
        tryCompare(entry, "entryTitle", "Cleaned 1 category", patience);
        verify(entry.headline.startsWith("Smart Cleanup · ") && entry.headline.endsWith(" · 300 KB"), entry.headline);
        closeHistory();
    }

    function test_cleansByKeyboard() {
        tick("Log Files");
        tryCompare(Program.named("footText"), "text", "1 categories selected · 600 KB to clean", patience);
        tabTo("the button", item => item === cleanButton());
        press(Qt.Key_Return);
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
        press(Qt.Key_Tab);
        press(Qt.Key_Return);
        tryVerify(() => Cleanup.names("Library/Logs") === "", patience, "the logs are gone");
        tryVerify(() => !Cleanup.isCleaning() && !foot(), patience, "the cleaning has ended, and its scan");
        verify(list().activeFocus, `the keyboard goes on in the list, not at ${Program.focusPath()}`);
    }

    function test_trashGoesForGood() {
        review("Trash");
        tick("Trash");
        askToClean();
        find("Cleaning:\n  • Trash\n\nTotal: 250 KB\n\n⚠️ Trash items will be permanently deleted and cannot be recovered.");
        Program.picture("cleanup-confirm-trash");
        clickOn(Program.named("confirmCancel"));
        tryGone("Confirm Cleanup");
        clean();
        compare(Cleanup.names(".Trash"), "");
        verify(Surroundings.exists(Surroundings.at("home/.Trash")));
        verify(!categories().includes("Trash"));
        compare(Surroundings.recycled(), "");
    }

    function test_emptyFoldersGoThemselves() {
        review("Empty Folders");
        tick("Empty Folders");
        compare(told(cleanButton(), "text"), "Clean 2 items");
        clickOn(row("void"));
        compare(told(cleanButton(), "text"), "Clean 1 item");
        clean();
        compare(Cleanup.names("Desktop"), "");
        verify(Surroundings.exists(Surroundings.at("home/Downloads/void")));
        compare(Cleanup.names(".Trash"), "hollow\nthrown away");
    }

    function test_downloadsGoWhenTheyAreOld() {
        review("Old Downloads");
        tick("Old Downloads");
        compare(footText(), "1 categories selected · 400 KB to clean");
        clean();
        compare(Cleanup.names("Downloads"), "new.zip\nvoid");
    }

    function test_whatCannotBeMovedStays() {
        Surroundings.refuseRecycle(Surroundings.at("home/Library/Logs/big.log"));
        openPreview("Log Files");
        click("Select All", list());
        clean();
        compare(Cleanup.names("Library/Logs"), "big.log");
        verify(categories().includes("Log Files"));
        verify(!Program.texts().includes("It is locked."));
    }

    function test_restsWhileItCleans() {
        // A category without a file goes as a whole, and for that it is listed.
        Surroundings.remove(Surroundings.at("home/.Trash/thrown away"));
        review("Trash");
        openPreview("Log Files");
        tick("Trash");
        Surroundings.holdDisk(Surroundings.at("home/.Trash"));
        askToClean();
        clickOn(Program.named("confirmAction"));
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the run is under way");
        tryCompare(cleanButton(), "text", "Cleaning…", patience);
        verify(!cleanButton().enabled && !scanButton().enabled);
        compare(Program.spoken(cleanButton()).name, "Cleaning…");
        compare(Program.spoken(cleanButton()).states, "disabled");
        compare(Program.spoken(row("Log Files")).states, "expandable expanded selectable"); // it can't be ticked now
        verify(!Program.named("selectAllButton").enabled && !tickOf("Log Files").enabled && !tickOf("big.log").enabled);
        clickOn(row("big.log"));
        tick("Log Files");
        press(Qt.Key_R, Qt.ControlModifier);
        verify(!isTicked("big.log") && !isTicked("Log Files"));
        verify(!Program.named("stopButton"));
        Program.picture("cleanup-cleaning");
        open("Dashboard"); // the program stays usable
        open("Cleanup");
        compare(told(cleanButton(), "text"), "Cleaning…");
        Surroundings.releaseDisk();
        tryVerify(() => !Cleanup.isCleaning() && !foot(), patience, "the run has ended");
        waitForScan();
        verify(!categories().includes("Trash"));
    }

    function test_cleansUntilTheSystemIsClean() {
        for (const name of ["Old Downloads", "Empty Folders"]) {
            review(name);
            tick(name);
            clickOn(row(name)); // closed again
        }
        clickOn(Program.named("selectAllButton"));
        clean();
        compare(Cleanup.names("Downloads"), "new.zip");
        Surroundings.remove(Surroundings.at("home/Downloads/new.zip"));
        for (let i = 0; i < 4 && !Program.textItem("Your system is clean!"); ++i) {
            scan();
            if (categories().includes("Trash")) {
                review("Trash");
                tick("Trash");
            }
            clickOn(Program.named("selectAllButton"));
            if (foot())
                clean();
        }
        find("Your system is clean!", screen());
        compare(Cleanup.names(".Trash"), "");
    }
}
