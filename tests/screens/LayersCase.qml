import QtQuick
import Quillmere.Screens

// What the tests of the keys share while something stands over the window.
DuplicatesCase {
    function cleanup() {
        for (let i = 0; i < 4 && isAnythingUp(); ++i)
            press(Qt.Key_Escape);
        Program.removeTextField();
        Program.window.width = usualWidth;
        Program.window.height = usualHeight;
        compare(Program.takeWarnings(), "");
    }

    function isAnythingUp() {
        return Program.isSheetUp() || Program.textItem("Confirm Deletion") !== null || Program.named("panelList") !== null;
    }

    function picker() {
        return Program.itemWith("shownText", screen());
    }

    function openSheet() {
        press(Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier);
        tryVerify(() => Program.named("historyList")?.activeFocus, patience, "the sheet is up");
        Program.settle();
    }

    function askToClear() {
        Activity.record({ kind: "cleanup", title: "Cleaned some" });
        openSheet();
        clickOn(Program.named("clearHistory"));
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the question is up");
    }

    // The program's own panel, which a desktop without one gets.
    function openPanel() {
        Program.askForFolder("Which folder?");
        tryVerify(() => Program.named("panelList")?.activeFocus, patience, "the panel is up");
        find("Movies", Program.named("panelList"));
    }

    // The field has the keyboard, and the name that was there at first is marked.
    function askForName() {
        openPanel();
        clickOn(Program.named("panelNewFolder"));
        tryVerify(() => isWithin(focusItem(), Program.named("promptField")), patience, "the question is up");
    }

    // What a person sees of it: the texts of everything in the window, and of the menus.
    function view() {
        Program.settle();
        return Program.texts() + Program.menuLines() + Program.texts(menuBar());
    }

    function layers_data() {
        return [
            { tag: "menu of the bar", open: () => press(Qt.Key_H, Qt.AltModifier),
              isUp: () => Program.menuLines().startsWith("Quillmere Help"), focus: () => list() },
            { tag: "menu of a row", open: () => openFileMenu("b/film.mov"), isUp: () => Program.menuLines() !== "",
              focus: () => list() },
            { tag: "choices", open: () => clickOn(picker()), isUp: () => picker().popup.visible, focus: () => picker() },
            { tag: "question", open: () => askToDelete(), isUp: () => Program.textItem("Confirm Deletion") !== null,
              focus: () => Program.named("trashButton") },
            { tag: "sheet", open: () => openSheet(), isUp: () => Program.isSheetUp(), focus: () => list() },
            { tag: "question over a sheet", open: () => askToClear(),
              isUp: () => Program.isSheetUp() && Program.named("confirmCancel") !== null,
              focus: () => Program.named("clearHistory") },
            { tag: "panel for a folder", open: () => openPanel(), isUp: () => Program.named("panelList") !== null,
              focus: () => list() },
            { tag: "question for a text", open: () => askForName(), isUp: () => Program.named("promptField") !== null,
              focus: () => Program.named("panelNewFolder") },
        ];
    }
}
