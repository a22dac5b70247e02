import QtQuick
import Quillmere

// A whole number, written or stepped to with the arrows and, while it has the keyboard, the wheel. What is no number of the
// range is marked and changes nothing; the field shows the value again when it is left.
InputField {
    id: field

    required property double value
    property double from: -1e15
    property double to: 1e15
    property double step: 1

    signal chosen(double value)

    function read() {
        return WholeNumbers.read(text, from, to);
    }

    function show() {
        if (read() !== value)
            text = WholeNumbers.text(value);
    }

    function take() {
        const number = read();
        if (!isNaN(number) && number !== value)
            chosen(number);
    }

    function stepBy(count) {
        const next = WholeNumbers.stepped(value, count * step, from, to);
        if (next !== value)
            chosen(next);
        show();
    }

    implicitWidth: 80
    inputMethodHints: Qt.ImhFormattedNumbersOnly
    maximumLength: 32
    isWrong: isNaN(read())
    onValueChanged: show()
    onEdited: take()
    onAccepted: show()
    onFinished: show()
    Component.onCompleted: show()
    Keys.onUpPressed: stepBy(1)
    Keys.onDownPressed: stepBy(-1)

    data: WheelHandler {
        readonly property int notch: 15 // degrees

        enabled: field.activeFocus
        onRotationChanged: if (Math.abs(rotation) >= notch) field.stepBy(takeNotches())

        // Whole ones; what is left over counts at the next turn.
        function takeNotches() {
            const notches = Math.trunc(rotation / notch);
            rotation -= notches * notch;
            return notches;
        }
    }
}
