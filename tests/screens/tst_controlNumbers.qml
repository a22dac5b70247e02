pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// The field of a number, by signs, arrows and wheel.
Item {
    id: stage
    width: 800
    height: 600

    Component {
        id: numbers
        NumberField {
            label: "Start"
            value: 5
            from: -100
            to: 100
            onChosen: number => value = number
        }
    }

    ControlCase {
        name: "ControlNumbers"
        stage: stage

        function test_numberIsTakenWhileItIsWritten() {
            const number = field(numbers);
            number.selectAll();
            write("42");
            compare(number.value, 42);
        }

        function test_whatIsNoNumberOfTheRangeChangesNothing_data() {
            return Array.from(["", "-", "abc", "1.5", "101", "-101", "99999999999999999999"], text => ({ tag: `"${text}"`, text: text }));
        }

        function test_whatIsNoNumberOfTheRangeChangesNothing(row) {
            const number = field(numbers, { value: 7 });
            number.text = row.text;
            number.edited();
            verify(number.isWrong);
            compare(number.value, 7);
            stage.forceActiveFocus();
            compare(number.text, "7");
            verify(!number.isWrong);
        }

        function test_returnShowsTheValueAgain() {
            const number = field(numbers, { value: 7 });
            write("x");
            verify(number.isWrong);
            press(Qt.Key_Return);
            compare(number.text, "7");
        }

        function test_arrowsAndWheelStepWithinTheRange() {
            const number = field(numbers, { value: 98 });
            for (let i = 0; i < 10; ++i)
                press(Qt.Key_Up);
            compare(number.value, 100);
            compare(number.text, "100");
            press(Qt.Key_Down);
            compare(number.value, 99);
            mouseWheel(number, 10, 10, 0, -120);
            compare(number.value, 98);
            mouseWheel(number, 10, 10, 0, 240);
            compare(number.value, 100);
        }

        function test_wheelOverAFieldWithoutTheKeyboardIsNotItsOwn() {
            const number = make(numbers);
            mouseWheel(number, 10, 10, 0, 120);
            compare(number.value, 5);
        }

        function test_largeNumbersStayExact() {
            const number = field(numbers, { value: 999999999999998, from: -1e15, to: 1e15 });
            compare(number.text, "999999999999998");
            for (let i = 0; i < 3; ++i)
                press(Qt.Key_Up);
            compare(number.value, 1e15);
            compare(number.text, "1000000000000000");
        }

        function test_valueThatIsNoNumberIsShownAsNone() {
            const number = field(numbers, { value: NaN });
            compare(number.text, "");
            press(Qt.Key_Up);
            compare(number.value, -100);
        }

        function test_valueFromOutsideIsShown() {
            const number = make(numbers);
            number.value = 12;
            compare(number.text, "12");
        }
    }
}
