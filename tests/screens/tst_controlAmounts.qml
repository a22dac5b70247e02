pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// What shows amounts, states and results: the stacked bar, the ring, the busy button, the toggle and the line of a result.
Item {
    id: stage
    width: 800
    height: 600

    Component {
        id: bars
        StackedBar {
            width: 400
            label: "Storage"
            parts: [
                { share: 0.5, fill: "red", label: "Documents: 5 GB", tip: "Documents: 5 GB — click to open", isLink: true },
                { share: 0, fill: "green", label: "Nothing", isLink: true },
                { share: 0.0001, fill: "blue", label: "Music: 1 KB", tip: "Music", isLink: true },
                { share: 0.3, fill: "gray", label: "Available", tip: "Available: 3 GB" },
            ]
        }
    }
    Component {
        id: rings
        ProgressRing { width: 14; height: 14; label: "Measuring" }
    }
    Component {
        id: busy
        ActionButton { text: "Rename 3 Files"; symbol: "checkmark" }
    }
    Component {
        id: toggles
        IconButton {
            symbol: "eye.fill"
            label: "Hidden"
            tip: "Show Hidden Files"
            isToggle: true
            onClicked: isOn = !isOn
        }
    }
    Component {
        id: results
        ResultLine {
            width: 600
            text: "Failed: Notes"
            detail: "No permission"
            tone: ResultLine.Failure
            dismissLabel: "Dismiss"
            ActionButton { text: "Retry with password" }
        }
    }

    ControlCase {
        name: "ControlAmounts"
        stage: stage

        function test_partsOfABarHaveTheirWidths() {
            const bar = make(bars);
            compare(Array.from(bar.widths).join(), "200,0,4,120");
        }

        function test_barBeginsAtTheRightWhereOneReadsFromThere() {
            const bar = make(bars);
            const choices = spy(bar, "chosen");
            bar.LayoutMirroring.enabled = true;
            bar.LayoutMirroring.childrenInherit = true;
            waitForRendering(stage);
            mouseClick(bar, 390, 5);
            compare(choices.count, 1);
            mouseClick(bar, 10, 5);
            compare(choices.count, 1);
        }

        function test_partIsReachedAndPressedByKey() {
            const bar = make(bars);
            const choices = spy(bar, "chosen");
            press(Qt.Key_Tab);
            compare(Program.spoken(focusItem()).name, "Documents: 5 GB");
            compare(Program.spoken(focusItem()).role, Accessible.Button);
            compare(Program.spoken(Program.itemWith("isLink", bar, false)).role, Accessible.StaticText);
            press(Qt.Key_Right);
            compare(Program.spoken(focusItem()).name, "Music: 1 KB"); // past the one that is not to be seen
            press(Qt.Key_Right);
            compare(Program.spoken(focusItem()).name, "Music: 1 KB"); // the free space is no command
            press(Qt.Key_Return);
            compare(choices.signalArguments[0][0], 2);
            mouseClick(bar, 50, 5);
            compare(choices.signalArguments[1][0], 0);
            mouseClick(bar, 250, 5);
            compare(choices.count, 2);
        }

        function test_partTellsItsTooltip() {
            const bar = make(bars);
            mouseMove(bar, 250, 5);
            tryVerify(() => onView().includes("Available: 3 GB"), patience);
        }

        function test_barOfNonsenseIsDrawn() {
            const bar = make(bars, { parts: [{ share: NaN, fill: "red" }, { share: -1, fill: "red" }, { share: 7, fill: "red" }] });
            compare(Array.from(bar.widths).join(), "0,0,400");
        }

        function test_resultTellsItsToneTextAndWay() {
            const line = make(results);
            const ends = spy(line, "dismissed");
            compare(Program.spoken(line).role, Accessible.AlertMessage);
            compare(Program.spoken(line).name, "Failed: Notes");
            compare(String(line.borderColor), String(Theme.red));
            for (const text of ["Failed: Notes", "No permission", "Retry with password"])
                verify(onView().includes(text), text);
            mouseClick(Program.itemWith("symbolSize", line, 12));
            compare(ends.count, 1);
        }

        function test_resultWithoutAWordForItHasNoCross() {
            const line = make(results, { dismissLabel: "" });
            compare(Program.itemWith("symbolSize", line, 12), null);
        }

        function test_resultWithoutATextTakesNoRoom() {
            const line = make(results, { text: "" });
            verify(!line.visible);
            compare(line.implicitHeight, 0);
        }

        function test_longResultStaysLow() {
            const line = make(results, { text: longText(), detail: longText() });
            verify(line.height < 120, line.height);
        }

        function test_ringTurnsOnlyWhileItIsSeenToWork() {
            const ring = make(rings, { isTurning: true });
            tryVerify(() => ring.start > 0, patience);
            ring.visible = false;
            compare(ring.start, 0);
            ring.isTurning = false;
            ring.value = 0.4;
            compare(ring.share, 0.4);
        }

        function test_ringHoldsOutAgainstNonsense() {
            const ring = make(rings);
            for (const [value, share] of [[NaN, 0], [-3, 0], [Infinity, 1], [2, 1]]) {
                ring.value = value;
                compare(ring.share, share);
            }
        }

        function test_ringIsDrawn() {
            const ring = make(rings, { value: 0.5, color: "#ff0000", track: "#0000ff", width: 28, height: 28 });
            const picture = grabImage(ring);
            compare(String(picture.pixel(26, 14)), "#ff0000"); // its right half is done, clockwise from the top
            compare(String(picture.pixel(2, 14)), "#0000ff");
        }

        function test_busyButtonTurnsARingInPlaceOfItsSymbol() {
            const command = make(busy);
            const width = command.width;
            compare(Program.itemWith("isTurning", command), null);
            command.isBusy = true;
            verify(Program.itemWith("isTurning", command).isTurning);
            compare(command.width, width);
            command.isBusy = false;
            tryVerify(() => Program.itemWith("isTurning", command) === null, patience);
        }

        function test_toggleTellsWhetherItIsOn() {
            const toggle = make(toggles);
            compare(Program.spoken(toggle).states, "checkable");
            mouseClick(toggle);
            compare(Program.spoken(toggle).states, "checkable checked");
        }
    }
}
