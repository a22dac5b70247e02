import QtQuick
import Quillmere.Screens

// What the keys do in a menu, a list of choices, a sheet and a question, as the table in docs/architecture.md has it.
LayersCase {
    name: "KeysOfLayers"

    function takingKeys() {
        return [
            { tag: "Return", key: Qt.Key_Return },
            { tag: "Space", key: Qt.Key_Space },
            { tag: "the keypad's Enter", key: Qt.Key_Enter, modifiers: Qt.KeypadModifier },
        ];
    }

    function test_upAndDownWalkTheMenuOfARow() {
        openFileMenu("b/film.mov");
        const lines = Program.menuLines().split("\n").filter(line => line !== "-");
        for (const [key, line] of [[Qt.Key_Down, 0], [Qt.Key_Down, 1], [Qt.Key_Down, 2], [Qt.Key_Up, 1], [Qt.Key_Up, 0]]) {
            press(key);
            compare(lit(), lines[line]);
        }
        press(Qt.Key_Escape);
    }

    function test_litLineOfTheMenuOfARowIsTakenBy_data() {
        return takingKeys();
    }

    function test_litLineOfTheMenuOfARowIsTakenBy(data) {
        openFileMenu("b/film.mov");
        for (let i = 0; i < 9 && lit() !== "Copy Path"; ++i)
            press(Qt.Key_Down);
        press(data.key, data.modifiers);
        compare(Program.menuLines(), "");
        compare(Surroundings.clipboard(), path("b/film.mov"));
    }

    function test_upAndDownWalkTheChoices() {
        clickOn(picker());
        compare(picker().highlightedIndex, 2);
        for (const [key, choice] of [[Qt.Key_Down, 3], [Qt.Key_Up, 2], [Qt.Key_Up, 1]]) {
            press(key);
            compare(picker().highlightedIndex, choice);
        }
        compare(picker().shownText, "100 KB"); // nothing is taken on the way
        press(Qt.Key_Escape);
        compare(picker().shownText, "100 KB");
    }

    function test_choiceIsTakenBy_data() {
        return takingKeys();
    }

    function test_choiceIsTakenBy(data) {
        clickOn(picker());
        press(Qt.Key_Down);
        press(data.key, data.modifiers);
        verify(!picker().popup.visible);
        compare(picker().shownText, "1 MB");
        verify(picker().activeFocus, Program.focusPath());
    }

    function test_upAndDownAreTheListsInASheet() {
        for (const title of ["Cleaned one", "Cleaned two"])
            Activity.record({ kind: "cleanup", title: title });
        openSheet();
        const entries = Program.named("historyList");
        find("Cleaned two", entries); // the log is written in turns of its own
        press(Qt.Key_Home);
        compare(told(entries, "currentIndex"), 0);
        press(Qt.Key_Down);
        compare(told(entries, "currentIndex"), 1);
        press(Qt.Key_Up);
        compare(told(entries, "currentIndex"), 0);
        press(Qt.Key_Escape);
    }

    function test_buttonOfASheetIsPressedBy_data() {
        return takingKeys();
    }

    function test_buttonOfASheetIsPressedBy(data) {
        openSheet();
        tabTo("the close button", item => item === Program.named("sheetClose"));
        press(data.key, data.modifiers);
        tryVerify(() => !Program.isSheetUp(), patience, "the sheet is down");
    }

    function test_questionIsCancelledAtFirstBy_data() {
        return takingKeys();
    }

    function test_questionIsCancelledAtFirstBy(data) {
        askToDelete();
        press(data.key, data.modifiers);
        tryGone("Confirm Deletion");
        compare(Surroundings.recycled(), "");
        compare(gone(), []);
    }

    function test_questionIsAnsweredAtItsActionBy_data() {
        return takingKeys();
    }

    function test_questionIsAnsweredAtItsActionBy(data) {
        onlyPhoto();
        askToDelete();
        tabTo("the action", item => item === Program.named("confirmAction"));
        press(data.key, data.modifiers);
        tryGone("Confirm Deletion");
        tryVerify(() => Surroundings.recycled() === path("b/photo.jpg"), patience, "the file is in the Trash");
    }

    function test_arrowsLeaveTheKeyboardInAQuestion() {
        askToDelete();
        const before = view();
        for (const key of [Qt.Key_Up, Qt.Key_Down, Qt.Key_Left, Qt.Key_Right]) {
            press(key);
            verify(Program.named("confirmCancel").activeFocus, Program.focusPath());
        }
        compare(view(), before);
        press(Qt.Key_Escape);
    }

    function test_keysOfTheListAreItsOwnInThePanel() {
        openPanel();
        const folders = Program.named("panelList");
        press(Qt.Key_Home);
        compare(told(folders, "currentIndex"), 0);
        press(Qt.Key_Down);
        compare(told(folders, "currentIndex"), 1);
        press(Qt.Key_Up);
        compare(told(folders, "currentIndex"), 0);
        press(Qt.Key_Escape);
        tryVerify(() => !Program.named("panelList"), patience, "the panel is gone");
    }

    function test_editingKeysAreTheTextFieldsOwnInAQuestion() {
        askForName();
        const field = Program.named("promptField");
        press(Qt.Key_A, Qt.ControlModifier);
        press(Qt.Key_N);
        compare(told(field, "text"), "n");
        press(Qt.Key_A, Qt.ControlModifier);
        press(Qt.Key_C, Qt.ControlModifier);
        press(Qt.Key_X, Qt.ControlModifier);
        compare(told(field, "text"), "");
        press(Qt.Key_V, Qt.ControlModifier);
        press(Qt.Key_V, Qt.ControlModifier);
        compare(told(field, "text"), "nn");
        press(Qt.Key_Z, Qt.ControlModifier);
        compare(told(field, "text"), "n");
    }

    // The toolkit can't tell it from a letter that is made with that key, as some keyboards have them.
    function test_letterWithAltIsTheTextFieldsOwnInAQuestion() {
        askForName();
        press(Qt.Key_T, Qt.AltModifier);
        compare(told(Program.named("promptField"), "text"), "t");
        compare(Program.menuLines(), "");
    }

    function test_editingKeysAreTheTextFieldsOwnInTheWindow() {
        const field = Program.addTextField("word");
        field.forceActiveFocus();
        press(Qt.Key_A, Qt.ControlModifier);
        press(Qt.Key_X, Qt.ControlModifier);
        compare(told(field, "text"), "");
        press(Qt.Key_V, Qt.ControlModifier);
        compare(told(field, "text"), "word");
        press(Qt.Key_Z, Qt.ControlModifier);
        compare(told(field, "text"), "");
    }
}
