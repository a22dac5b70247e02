pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// What shows a choice that is given to it and asks for another one: chips, a picker, a number.
Item {
    id: stage
    width: 800
    height: 600

    // Where the Tab key goes from a row.
    ActionButton {
        id: neighbour
        y: 500
        text: "Neighbour"
    }
    ListModel {
        id: kinds
        function choose(index) {
            for (let i = 0; i < count; ++i)
                setProperty(i, "isSelected", i === index);
        }
        ListElement { label: "All"; countText: "9"; isSelected: true }
        ListElement { label: "Images"; countText: "5"; isSelected: false }
        ListElement { label: "Archives"; countText: "4"; isSelected: false }
    }
    Component {
        id: chips
        ChipRow {
            label: "Filters"
            model: kinds
            onChosen: index => kinds.choose(index)
        }
    }
    Component {
        id: refusingChips
        ChipRow {
            label: "Filters"
            model: kinds
        }
    }
    Component {
        id: pickers
        Picker {
            label: "Size"
            model: ["1 KB", "10 KB", "100 KB"]
            chosenIndex: 1
            shownText: model[chosenIndex]
        }
    }
    Component {
        id: numbers
        NumberField {
            label: "Start"
            value: 5
        }
    }

    ControlCase {
        name: "ControlChoices"
        stage: stage

        function init() {
            kinds.choose(0);
            mouseMove(stage, stage.width - 2, stage.height - 2);
            neighbour.forceActiveFocus(); // from where the Tab key leads to what is made
        }

        function focusChip() {
            return focusItem().label;
        }

        function test_chipsAreOneTabStopAtTheChosenOne() {
            make(chips);
            kinds.choose(1);
            press(Qt.Key_Tab);
            compare(focusChip(), "Images");
            verify(focusItem().visualFocus);
            press(Qt.Key_Tab);
            verify(neighbour.activeFocus);
        }

        function test_keysGoAlongChipsAndStopAtTheEnds() {
            make(chips);
            press(Qt.Key_Tab);
            for (const [key, label] of [[Qt.Key_Left, "All"], [Qt.Key_Right, "Images"], [Qt.Key_Down, "Archives"],
                                        [Qt.Key_Right, "Archives"], [Qt.Key_Home, "All"], [Qt.Key_End, "Archives"],
                                        [Qt.Key_Up, "Images"]]) {
                press(key);
                compare(focusChip(), label);
                verify(focusItem().isSelected);
            }
        }

        function test_arrowsTurnAroundOnChipsWhereOneReadsFromTheRight() {
            const row = make(chips);
            row.LayoutMirroring.enabled = true;
            row.LayoutMirroring.childrenInherit = true;
            press(Qt.Key_Tab);
            press(Qt.Key_Left);
            compare(focusChip(), "Images");
            press(Qt.Key_Right);
            compare(focusChip(), "All");
        }

        function told(object, property) {
            return object[property];
        }
        function test_chipThatIsRefusedIsNotChosen() {
            const row = make(refusingChips);
            press(Qt.Key_Tab);
            press(Qt.Key_Right);
            compare(focusChip(), "All");
            const second = Program.itemWith("label", row, "Images");
            mouseClick(second);
            verify(!told(second, "isSelected"));
            verify(!told(second, "checked"));
        }

        function test_chipsTakeASecondLineWhereTheyMay() {
            const row = make(chips, { width: 120, doesWrap: true });
            verify(row.height > 40, row.height);
            row.doesWrap = false;
            tryVerify(() => row.height < 30, patience);
        }

        function test_pickerShowsWhatItIsGiven() {
            const picker = make(pickers);
            const choices = spy(picker, "chosen");
            press(Qt.Key_Tab);
            press(Qt.Key_Down);
            compare(choices.count, 1);
            compare(choices.signalArguments[0][0], 2);
            compare(picker.currentIndex, 1);
            picker.chosenIndex = 0;
            compare(picker.currentIndex, 0);
            compare(picker.displayText, "1 KB");
        }

        function test_numberShowsWhatItIsGivenOnceItIsLeft() {
            const field = make(numbers);
            const choices = spy(field, "chosen");
            press(Qt.Key_Tab);
            press(Qt.Key_Up);
            compare(choices.signalArguments[0][0], 6);
            compare(field.text, "5");
        }
    }
}
