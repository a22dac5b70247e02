pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// Fields that are written into, and whose keys are theirs while they have the keyboard.
Item {
    id: stage
    width: 800
    height: 600

    Component {
        id: inputs
        InputField { placeholder: "Find..." }
    }
    Component {
        id: searches
        SearchField {
            placeholder: "Search apps..."
            clearLabel: "Clear search"
            countText: "3 of 120"
        }
    }
    Component {
        id: windowKeys
        Item {
            property int undos: 0
            property int escapes: 0
            Shortcut {
                sequences: ["Ctrl+Z"]
                onActivated: undos += 1 // qmllint disable unqualified
            }
            Keys.onEscapePressed: escapes += 1
            Row {
                spacing: 8
                InputField { placeholder: "one" }
                SearchField { placeholder: "two"; clearLabel: "Clear" }
                ActionButton { text: "three" }
            }
        }
    }

    ControlCase {
        id: base
        name: "ControlFields"
        stage: stage

        function test_writingIsToldOfSignBySign() {
            const input = field(inputs);
            const edits = spy(input, "edited");
            write("ab c");
            compare(input.text, "ab c");
            compare(edits.count, 4);
        }

        function test_aTextFromOutsideIsNoEdit() {
            const input = field(inputs);
            const edits = spy(input, "edited");
            input.text = "given";
            compare(edits.count, 0);
        }

        function test_placeholderStandsWhereNothingIsWritten() {
            const input = field(inputs);
            verify(onView().includes("Find..."));
            write("a");
            verify(!onView().includes("Find..."));
        }

        function test_returnAndTheKeypadsEnterAccept() {
            const input = field(inputs);
            const accepts = spy(input, "accepted");
            press(Qt.Key_Return);
            press(Qt.Key_Enter);
            compare(accepts.count, 2);
        }

        function test_editingKeysDoWhatTheyDoEverywhere() {
            const input = field(inputs);
            const edits = spy(input, "edited");
            write("word");
            press(Qt.Key_Z, Qt.ControlModifier);
            verify(input.text !== "word");
            press(Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier);
            compare(input.text, "word");
            press(Qt.Key_A, Qt.ControlModifier);
            press(Qt.Key_X, Qt.ControlModifier);
            compare(input.text, "");
            press(Qt.Key_V, Qt.ControlModifier);
            press(Qt.Key_V, Qt.ControlModifier);
            compare(input.text, "wordword");
            compare(edits.count, 9);
        }

        function test_undoIsTheFieldsEvenWithNothingToUndo() {
            const around = make(windowKeys);
            const input = around.children[0].children[0];
            input.forceActiveFocus(Qt.TabFocusReason);
            press(Qt.Key_Z, Qt.ControlModifier);
            compare(around.undos, 0);
            around.children[0].children[2].forceActiveFocus(Qt.TabFocusReason);
            press(Qt.Key_Z, Qt.ControlModifier);
            compare(around.undos, 1);
        }

        function test_eachFieldIsOneStopOfTheTabKey() {
            const around = make(windowKeys);
            const parts = around.children[0].children;
            parts[1].text = "something"; // so that its button is there
            parts[0].forceActiveFocus(Qt.TabFocusReason);
            press(Qt.Key_Tab);
            verify(parts[1].activeFocus);
            press(Qt.Key_Tab);
            verify(parts[2].activeFocus);
            press(Qt.Key_Backtab, Qt.ShiftModifier);
            verify(parts[1].activeFocus);
            press(Qt.Key_Backtab, Qt.ShiftModifier);
            verify(parts[0].activeFocus);
        }

        function test_escapeGoesOnWhereTheFieldDoesNotTakeIt() {
            const around = make(windowKeys);
            const input = around.children[0].children[0];
            const escapes = spy(input, "escaped");
            input.forceActiveFocus(Qt.TabFocusReason);
            press(Qt.Key_Escape);
            compare(escapes.count, 0);
            compare(around.escapes, 1);
            input.takesEscape = true;
            press(Qt.Key_Escape);
            compare(escapes.count, 1);
            compare(around.escapes, 1);
        }

        function test_pressBesideTheTextTakesTheKeyboard() {
            const input = make(inputs, { symbol: "magnifyingglass" });
            mouseClick(input, 4, 4);
            verify(input.activeFocus);
        }

        function test_disabledFieldTakesNothing() {
            const input = make(inputs, { enabled: false });
            mouseClick(input);
            verify(!input.activeFocus);
        }

        function test_wrongTextIsToldByColourAndWord() {
            const input = make(inputs, { isWrong: true, wrongText: "No such folder" });
            const line = inputIn(input);
            compare(Program.spoken(line).description, "No such folder");
            mouseMove(input, 20, 10);
            tryVerify(() => onView().includes("No such folder"), patience);
        }

        function inputIn(item) {
            return Program.itemWith("preeditText", item);
        }

        function test_tellsWhatItIs() {
            const line = inputIn(make(searches));
            compare(Program.spoken(line).role, Accessible.EditableText);
            compare(Program.spoken(line).name, "Search apps...");
            compare(Program.spoken(line).states, "editable searchEdit");
        }

        function test_tenThousandSignsStayInside() {
            const input = field(inputs, { text: longText() });
            compare(input.width, 220);
            write("x");
            compare(input.text.length, 10001);
        }

        function test_searchShowsCountAndCrossWithTextInItAlone() {
            const search = field(searches);
            verify(!onView().includes("3 of 120"));
            compare(crossIn(search), null);
            write("a");
            verify(onView().includes("3 of 120"));
            compare(Program.spoken(crossIn(search)).name, "Clear search");
        }

        function crossIn(search) {
            return Program.itemWith("symbolSize", search);
        }

        function test_searchIsClearedByCrossAndByEscape_data() {
            return [
                { tag: "cross", clear: search => mouseClick(crossIn(search)) },
                { tag: "Escape", clear: () => press(Qt.Key_Escape) },
            ];
        }

        function test_searchIsClearedByCrossAndByEscape(row) {
            const search = field(searches);
            const clears = spy(search, "cleared");
            const edits = spy(search, "edited");
            write("ab");
            row.clear(search);
            compare(search.text, "");
            compare(clears.count, 1);
            compare(edits.count, 3);
            verify(search.activeFocus);
        }

        function test_escapeInAnEmptySearchGoesOn() {
            const around = make(windowKeys);
            const search = around.children[0].children[1];
            search.forceActiveFocus(Qt.TabFocusReason);
            write("a");
            press(Qt.Key_Escape);
            compare(around.escapes, 0);
            press(Qt.Key_Escape);
            compare(around.escapes, 1);
        }
    }
}
