import QtQuick
import Quillmere.Screens

// The menu bar: its lines, their keys, what they do, and the Edit menu with a text field.
ScreenCase {
    name: "Menus"

    function test_menuHasItsLines_data() {
        return [
            { tag: "Quillmere", lines: ["About Quillmere off", "-", "Settings… (Ctrl+,) off", "-", "Quit Quillmere (Ctrl+Q)"] },
            { tag: "File", lines: ["New Folder… (Ctrl+N) off"] },
            { tag: "Edit", lines: ["Undo (Ctrl+Z) off", "Redo (Ctrl+Shift+Z) off", "-", "Cut (Ctrl+X) off",
                                   "Copy (Ctrl+C) off", "Paste (Ctrl+V) off", "-", "Select All (Ctrl+A) off"] },
            { tag: "View", lines: ["Dashboard (Ctrl+1)", "File Browser (Ctrl+2)", "Search (Ctrl+3)",
                                   "Disk Analyzer (Ctrl+4)", "Duplicates (Ctrl+5)", "-", "Bulk Rename", "Cleanup",
                                   "Organizer", "App Manager"] },
            { tag: "Tools", lines: ["Refresh Current View (Ctrl+R)", "-", "Scan for Duplicates", "Quick Cleanup",
                                    "Find Ghost Files"] },
            { tag: "Help", lines: ["Quillmere Help (Ctrl+?) off", "Keyboard Shortcuts (Ctrl+/) off", "-",
                                   "Replay Welcome Tour off", "Activity History… (Ctrl+Shift+Y)", "-",
                                   "Report a Bug…", "Request a Feature…"] },
        ];
    }

    function test_menuHasItsLines(row) {
        compare(openMenu(row.tag), row.lines.join("\n"));
        Program.picture("menu-" + row.tag);
        closeMenu();
    }

    function test_viewMenuNavigates_data() {
        const titles = ["Dashboard", "File Browser", "Search", "Disk Analyzer", "Duplicates", "Bulk Rename",
                        "Cleanup", "Organizer", "App Manager"];
        return Array.from(titles, title => ({ tag: title }));
    }

    function test_viewMenuNavigates(row) {
        open(row.tag === "Search" ? "Dashboard" : "Search");
        choose("View", row.tag);
        compare(Program.selectedScreen(), row.tag);
        compare(Surroundings.posted(), "Quillmere.navigate");
        find(headOf(row.tag), screen());
    }

    function test_toolsOnlyNavigate_data() {
        return [
            { tag: "Scan for Duplicates", screen: "Duplicates" },
            { tag: "Quick Cleanup", screen: "Cleanup" },
            { tag: "Find Ghost Files", screen: "App Manager" },
        ];
    }

    function test_toolsOnlyNavigate(row) {
        open("Dashboard");
        choose("Tools", row.tag);
        compare(Program.selectedScreen(), row.screen);
    }

    function test_keyboardOpensWalksAndChooses() {
        open("Dashboard");
        press(Qt.Key_F10);
        tryVerify(() => Program.menuLines().startsWith("About Quillmere"), patience, "F10 opens the first menu");
        for (const first of ["New Folder…", "Undo", "Dashboard"]) {
            press(Qt.Key_Right);
            tryVerify(() => Program.menuLines().startsWith(first), patience, `the menu of ${first} opens`);
        }
        press(Qt.Key_Left);
        tryVerify(() => Program.menuLines().startsWith("Undo"), patience, "the menu before opens");
        press(Qt.Key_Right);
        tryVerify(() => Program.menuLines().startsWith("Dashboard"), patience, "the View menu opens");
        press(Qt.Key_Down);
        press(Qt.Key_Return);
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
        compare(Program.selectedScreen(), "File Browser");
    }

    function test_disabledLineDoesNothing() {
        openMenu("Help");
        clickOn(menuLine("Replay Welcome Tour"));
        verify(!Program.isSheetUp());
        compare(Surroundings.posted(), "");
        closeMenu();
        for (const key of [Qt.Key_Comma, Qt.Key_Slash, Qt.Key_N])
            press(key, Qt.ControlModifier);
        compare(Surroundings.posted(), "");
        verify(!Program.isSheetUp());
    }

    function test_bugReportOpensMailDraft() {
        choose("Help", "Report a Bug…");
        const mail = decodeURIComponent(Surroundings.mail());
        verify(mail.startsWith("mailto:support@quillmere.example?subject=[Bug] &body=Please describe the bug "
                               + "below this line:\n\n\n\nSteps to reproduce (if you can):\n\n\n\n---\n"), mail);
        verify(mail.endsWith("Quillmere 1.0.0 (build 7)\nmacOS 14.2.1\nMac model: Model One\nLocale: en_US\n---"), mail);
    }

    function test_featureRequestOpensMailDraft() {
        choose("Help", "Request a Feature…");
        verify(decodeURIComponent(Surroundings.mail()).includes("?subject=[Feature Request] &body=Please describe the "
                                                           + "feature you'd like below this line:"));
    }

    function test_editMenuServesTheTextField() {
        const field = Program.addTextField("some words");
        clickOn(field);
        tryCompare(field, "activeFocus", true);
        compare(openMenu("Edit"), "Undo (Ctrl+Z)\nRedo (Ctrl+Shift+Z)\n-\nCut (Ctrl+X)\nCopy (Ctrl+C)\n"
                + "Paste (Ctrl+V)\n-\nSelect All (Ctrl+A)");
        closeMenu();
        choose("Edit", "Select All");
        compare(told(field, "selectedText"), "some words");
        choose("Edit", "Cut");
        compare(told(field, "text"), "");
        choose("Edit", "Paste");
        choose("Edit", "Paste");
        compare(told(field, "text"), "some wordssome words");
        choose("Edit", "Undo");
        compare(told(field, "text"), "some words");
        verify(field.activeFocus);
        Program.removeTextField();
        verify(openMenu("Edit").startsWith("Undo (Ctrl+Z) off"));
        closeMenu();
    }

    function test_textKeysGoToTheFieldAndNotToTheMenu() {
        const field = Program.addTextField("words");
        clickOn(field);
        tryCompare(field, "activeFocus", true);
        press(Qt.Key_A, Qt.ControlModifier);
        compare(told(field, "selectedText"), "words");
        press(Qt.Key_X, Qt.ControlModifier);
        compare(told(field, "text"), "");
        press(Qt.Key_Z, Qt.ControlModifier);
        compare(told(field, "text"), "words");
        Program.removeTextField();
    }
}
