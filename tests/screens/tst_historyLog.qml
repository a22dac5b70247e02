import QtQuick
import Quillmere.Screens

// What the Activity History sheet does with the log as a whole: it clears it, and shows its file.
HistoryCase {
    name: "HistoryLog"

    readonly property string logFile: Surroundings.at("home/Library/Application Support/Quillmere/history.json")

    function askToClear() {
        clickOn(Program.named("clearHistory"));
        find("Clear all history?");
        tryVerify(() => Program.named("confirmCancel")?.activeFocus, patience, "the keyboard is on Cancel");
    }

    function test_clearAsksFirst_data() {
        return [
            { tag: "Cancel", how: () => clickOn(Program.named("confirmCancel")) },
            { tag: "Escape", how: () => press(Qt.Key_Escape) },
        ];
    }

    function test_clearAsksFirst(data) {
        fill();
        openSheet();
        askToClear();
        find("Deletes the activity log. Files already moved to Trash stay there. This can't be undone.");
        Program.picture("history-clear");
        verify(Qt.colorEqual(told(Program.named("sheetBackdrop"), "color"), "transparent")); // the question has its own
        data.how();
        tryGone("Clear all history?");
        verify(!Qt.colorEqual(told(Program.named("sheetBackdrop"), "color"), "transparent"));
        verify(Program.isSheetUp());
        compare(titles().length, 3);
    }

    function test_clearEmptiesTheLog() {
        fill();
        openSheet();
        clickOn(chip("Undo"));
        askToClear();
        clickOn(Program.named("confirmAction"));
        find("No activity yet.", sheet());
        verify(!Program.named("clearHistory"));
        compare(summary(), "0 of 0");
        verify(Program.isSheetUp());
    }

    function test_revealShowsTheLogsFile() {
        fill();
        openSheet();
        tryVerify(() => Program.named("revealHistory").enabled, patience, "there is a file");
        mouseMove(Program.named("revealHistory"));
        find("Reveal history.json in Finder");
        clickOn(Program.named("revealHistory"));
        compare(Surroundings.calls(), `reveal ${logFile}`);
    }

    function test_revealNeedsAFile() {
        Program.settle();
        Surroundings.remove(logFile);
        openSheet();
        verify(!Program.named("revealHistory").enabled);
        mouseMove(Program.named("revealHistory"));
        find("No history file yet — perform an action first.");
    }
}
