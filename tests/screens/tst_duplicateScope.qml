import QtQuick
import Quillmere.Screens

// The scope panel of the Duplicate Finder: the folders to scan, the rules that keep a scan out, and the way back to the
// defaults.
ScopeCase {
    name: "DuplicateScope"

    function test_defaultsAreHomeAndTheLocks() {
        compare(scanPaths(), ["~"]);
        compare(rules().map(row => row.ruleText), ["~/Library", "~/.Trash", "~/DerivedData", "node_modules", ".git",
                                                   "DerivedData", ".build", "__pycache__"]);
        verify(rules().every(row => row.symbol === "lock.fill" && !row.canBeRemoved));
        find("🔒 folders hold system files. Add one as a scan folder to override (advanced users only).", screen());
        find("Min file size:", screen());
        compare(told(Program.named("minSizePicker"), "displayText"), "100 KB");
        Program.picture("scope");
    }

    function test_panelTellsWhatItsControlsDo_data() {
        return [
            { tag: "folder", item: () => scanPathRows()[0], tip: "Click to change this folder" },
            { tag: "remove", item: () => Program.named("removeScanPath"), tip: "Remove from scan list" },
            { tag: "lock", item: () => rule("node_modules"), tip: "Built-in default — always excluded" },
            { tag: "reset", item: () => Program.named("resetScope"),
              tip: "Restore Duplicate Finder's scan + ignore lists to their original defaults (~ as the only scan path; "
                   + "built-in locks for ~/Library, .Trash, node_modules, .git, …)." },
        ];
    }

    function test_panelTellsWhatItsControlsDo(data) {
        mouseMove(data.item());
        find(data.tip);
        restPointer();
        tryGone(data.tip);
    }

    function test_tellsWholePathsThatAreCut() {
        const folder = `${twins}/${"long ".repeat(30)}`;
        Duplicates.scanOnly([folder], usualMinSize);
        Program.settle();
        mouseMove(scanPathRows()[0]);
        find(`${folder}\nClick to change this folder`);
        exclude(folder);
        mouseMove(rule(folder));
        const shown = () => Program.texts().split("\n").filter(text => text === folder).length;
        tryVerify(() => shown() === 3, patience, "both rows and a tooltip tell it");
        restPointer();
    }

    function test_addsChosenFolder() {
        add(twins + "/a");
        compare(Surroundings.folderMessage(), "Select a directory to scan for duplicates");
        compare(scanPaths(), ["~", twins + "/a"]);
        add(twins + "/a");
        compare(scanPaths(), ["~", twins + "/a"]); // it is there already
        click("Add Folder", screen()); // and the panel is cancelled
        compare(scanPaths(), ["~", twins + "/a"]);
    }

    function test_clickChangesFolder() {
        add(twins + "/a");
        Surroundings.userWillChoose(twins + "/b");
        clickOn(scanPathRows()[1]);
        compare(Surroundings.folderMessage(), "Choose a different folder to scan");
        compare(Surroundings.folderStart(), twins + "/a");
        compare(scanPaths(), ["~", twins + "/b"]);
        Surroundings.userWillCancel();
        clickOn(scanPathRows()[0]);
        compare(Surroundings.folderStart(), home);
        compare(scanPaths(), ["~", twins + "/b"]);
        Surroundings.userWillChoose(home);
        clickOn(scanPathRows()[1]); // to one that is there already
        compare(scanPaths(), ["~"]);
    }

    function test_removesFolder() {
        add(twins + "/a");
        const button = Program.named("removeScanPath", scanPathRows()[0]);
        compare(told(button, "label"), "Remove scan path");
        clickOn(button);
        compare(scanPaths(), [twins + "/a"]);
        clickOn(Program.named("removeScanPath"));
        compare(scanPaths(), []);
        find("No folders selected — add one to start scanning.", screen());
        verify(!scanButton().enabled);
        compare(Surroundings.folderMessage(), "Select a directory to scan for duplicates"); // the click was the button's alone
        Program.picture("scope-empty");
        add(home);
        verify(scanButton().enabled);
        tryGone("No folders selected — add one to start scanning.", screen());
    }

    function test_exclusionIsAddedAndRemoved() {
        exclude(home + "/Movies");
        compare(Surroundings.folderMessage(), "Select a directory to exclude from scanning");
        compare(rules().length, 9);
        const row = rule("~/Movies");
        compare(row.symbol, "folder.badge.minus");
        mouseMove(Program.named("removeExclusion", row));
        find("Remove exclusion");
        Program.picture("scope-exclusion");
        clickOn(Program.named("removeExclusion", row));
        compare(rules().length, 8);
        verify(rules().every(left => left.ruleText !== "~/Movies"));
    }

    function test_exclusionKeepsTheScanOut() {
        Duplicates.scanOnly([twins], usualMinSize);
        exclude(twins + "/b");
        scan();
        compare(fileRows().map(nameOf).sort(), ["a/film.mov", "a/photo.JPG", "c/film.mov", "c/photo.png"]);
    }

    function test_scanPathInsideALockedFolderOverridesIt() {
        add(home + "/Library/Mail");
        const row = rule("~/Library");
        compare(row.symbol, "lock.open.fill");
        find("· overridden", row);
        verify(!Program.named("removeExclusion", row));
        compare(rule("~/.Trash").symbol, "lock.fill");
        verify(!Program.textItem("· overridden", rule("~/.Trash")));
        mouseMove(rule("~/Library"));
        find("Overridden — a scan path is pointing inside this folder, so it WILL be scanned.");
        Program.picture("scope-overridden");
        clickOn(Program.named("removeScanPath", scanPathRows()[1]));
        compare(rule("~/Library").symbol, "lock.fill");
        tryGone("· overridden", screen());
    }

    function test_resetBringsBackTheDefaults() {
        verify(!Program.named("resetScope").enabled); // there is nothing to bring back
        add(twins);
        exclude(home + "/Movies");
        clickOn(Program.named("removeScanPath"));
        tabTo("the reset button", item => item === Program.named("resetScope"));
        press(Qt.Key_Return);
        compare(scanPaths(), ["~"]);
        compare(rules().length, 8);
        verify(!Program.named("resetScope").enabled);
    }
}
