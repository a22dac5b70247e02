pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// What stands in a row and is one stop of the Tab key: segments, tabs, crumbs, the parts of a bar; and what tells of a result.
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
    Component {
        id: segments
        Segments {
            label: "Sort"
            labels: ["Name", "Size", "Modified"]
            currentIndex: 0
            onChosen: index => currentIndex = index
        }
    }
    Component {
        id: refusals
        Segments {
            label: "Sort"
            labels: ["Name", "Size"]
            currentIndex: 0
        }
    }
    Component {
        id: tabs
        TabStrip {
            label: "Lists"
            labels: ["Installed", "Ghost Files", "More"]
            currentIndex: 0
            onChosen: index => currentIndex = index
        }
    }
    Component {
        id: crumbs
        Breadcrumbs {
            width: 400
            label: "Path"
            model: ["home", "me", "Documents", "Letters"]
        }
    }
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

    // Four cells in a row.
    Component {
        id: grids
        TileGrid {
            id: grid
            width: 400
            height: 200
            cellWidth: 100
            cellHeight: 80
            model: 30
            delegate: Item {
                required property int index
                width: 100
                height: 80
                BodyText { text: `cell ${parent.index}` }
                TapHandler { onTapped: grid.take(parent.index) }
            }
        }
    }

    ControlCase {
        name: "ControlGroups"
        stage: stage

        function init() {
            mouseMove(stage, stage.width - 2, stage.height - 2);
            neighbour.forceActiveFocus();
        }

        function test_clickChooses_data() {
            return [{ tag: "segments", kind: segments, second: "Size" }, { tag: "tabs", kind: tabs, second: "Ghost Files" }];
        }

        function test_clickChooses(row) {
            const group = make(row.kind);
            const choices = spy(group, "chosen");
            mouseClick(Program.textItem(row.second, group));
            compare(choices.count, 1);
            compare(group.currentIndex, 1);
        }

        function test_arrowsChooseAndTheRowIsOneTabStop_data() {
            return test_clickChooses_data();
        }

        function test_arrowsChooseAndTheRowIsOneTabStop(row) {
            const group = make(row.kind);
            press(Qt.Key_Tab);
            verify(group.activeFocus);
            verify(focusItem().visualFocus);
            compare(focusItem().text, group.labels[0]);
            press(Qt.Key_Right);
            compare(group.currentIndex, 1);
            compare(focusItem().text, group.labels[1]);
            verify(focusItem().visualFocus);
            for (let i = 0; i < 10; ++i)
                press(Qt.Key_Right);
            compare(group.currentIndex, 2);
            press(Qt.Key_Home);
            compare(group.currentIndex, 0);
            press(Qt.Key_End);
            compare(group.currentIndex, 2);
            press(Qt.Key_Left);
            compare(group.currentIndex, 1);
            press(Qt.Key_Tab);
            verify(neighbour.activeFocus);
        }

        function test_arrowsTurnAroundWhereOneReadsFromTheRight() {
            const group = make(segments);
            group.LayoutMirroring.enabled = true;
            group.LayoutMirroring.childrenInherit = true;
            press(Qt.Key_Tab);
            press(Qt.Key_Left);
            compare(group.currentIndex, 1);
            press(Qt.Key_Right);
            compare(group.currentIndex, 0);
        }

        function test_choiceThatIsRefusedStays() {
            const group = make(refusals);
            press(Qt.Key_Tab);
            press(Qt.Key_Right);
            compare(group.currentIndex, 0);
            compare(focusItem().text, "Name");
        }

        function test_noChoiceOrABadOneIsReachedAtAnEnd_data() {
            return [{ tag: "none", index: -1, text: "Name" }, { tag: "bad", index: 99, text: "Modified" }];
        }

        function test_noChoiceOrABadOneIsReachedAtAnEnd(row) {
            make(segments, { currentIndex: row.index });
            press(Qt.Key_Tab);
            compare(focusItem().text, row.text);
        }

        function test_chosenOneIsToldAsAState() {
            const group = make(segments, { currentIndex: 1 });
            press(Qt.Key_Tab);
            compare(focusItem().Accessible.role, Accessible.RadioButton);
            verify(focusItem().Accessible.checked);
            const strip = make(tabs);
            strip.forceActiveFocus(Qt.TabFocusReason);
            press(Qt.Key_Tab);
            const tab = Program.itemWith("isChosen", strip, true);
            compare(tab.Accessible.role, Accessible.PageTab);
            verify(tab.Accessible.selected);
            compare(group.Accessible.name, "Sort");
        }

        function test_segmentsOfSymbolsAloneHaveNames() {
            const group = make(segments, { labels: ["List view", "Grid view"], symbols: ["list.bullet", "square.grid.2x2"],
                                           areTextsShown: false });
            verify(!onView().includes("List view"));
            const first = Program.itemWith("isChosen", group);
            compare(first.Accessible.name, "List view");
            mouseMove(first, 5, 5);
            tryVerify(() => onView().includes("List view"), patience);
        }

        function test_longLabelsAreCut() {
            const group = make(segments, { labels: [longText(), "b"] });
            verify(group.width < 500, group.width);
        }

        function test_crumbsAreOneTabStopAtTheirEnd() {
            const way = make(crumbs);
            const choices = spy(way, "chosen");
            press(Qt.Key_Tab);
            compare(focusItem().text, "Letters");
            press(Qt.Key_Left);
            compare(focusItem().text, "Documents");
            verify(focusItem().visualFocus);
            press(Qt.Key_Home);
            press(Qt.Key_Left);
            compare(focusItem().text, "home");
            press(Qt.Key_Return);
            compare(choices.count, 1);
            compare(choices.signalArguments[0][0], 0);
            press(Qt.Key_End);
            compare(focusItem().text, "Letters");
            press(Qt.Key_Tab);
            verify(neighbour.activeFocus);
        }

        function test_clickOnACrumbChoosesIt() {
            const way = make(crumbs);
            const choices = spy(way, "chosen");
            mouseClick(Program.textItem("me", way));
            compare(choices.signalArguments[0][0], 1);
        }

        function test_longWayShowsItsEnd() {
            const way = make(crumbs, { model: Array.from({ length: 200 }, (none, i) => `folder ${i}`) });
            verify(onView().includes("folder 199"));
            verify(!onView().includes("folder 0\n"));
            press(Qt.Key_Tab);
            press(Qt.Key_Home);
            tryVerify(() => onView().includes("folder 0\n"), patience);
        }

        function test_longCrumbIsCutAndToldByItsTooltip() {
            const way = make(crumbs, { model: ["a", "a very long name ".repeat(10)] });
            const last = Program.itemWith("isCut", way, true);
            verify(last.width <= 240);
            mouseMove(last, 9, 9);
            tryVerify(() => onView().split("\n").filter(line => line.startsWith("a very long name")).length === 2, patience);
        }

        function test_emptyWayTakesNoKeys() {
            make(crumbs, { model: [] });
            press(Qt.Key_Tab);
            press(Qt.Key_Left);
            press(Qt.Key_End);
        }

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
            compare(focusItem().Accessible.name, "Documents: 5 GB");
            press(Qt.Key_Right);
            compare(focusItem().Accessible.name, "Music: 1 KB"); // past the one that is not to be seen
            press(Qt.Key_Right);
            compare(focusItem().Accessible.name, "Music: 1 KB"); // the free space is no command
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

        function test_gridIsWalkedByKey() {
            const grid = make(grids);
            press(Qt.Key_Tab);
            verify(grid.activeFocus);
            compare(grid.currentIndex, 0);
            for (const [key, cell] of [[Qt.Key_Down, 4], [Qt.Key_Right, 5], [Qt.Key_End, 29], [Qt.Key_Up, 25], [Qt.Key_Home, 0]]) {
                press(key);
                compare(grid.currentIndex, cell);
            }
            press(Qt.Key_End);
            verify(onView().includes("cell 29"));
            for (let i = 0; i < 10; ++i)
                press(Qt.Key_Left);
            compare(grid.currentIndex, 19);
        }

        function test_gridsKeysAreTurnedAroundWhereOneReadsFromTheRight() {
            const grid = make(grids);
            grid.LayoutMirroring.enabled = true;
            press(Qt.Key_Tab);
            press(Qt.Key_Left);
            compare(grid.currentIndex, 1);
        }

        function test_gridTellsWhatIsAskedOfACell() {
            const grid = make(grids);
            const asked = Array.from(["cellOpened", "cellToggled", "menuRequested", "selectionExtended"], name => spy(grid, name));
            press(Qt.Key_Return); // without a current cell, and without the keyboard
            press(Qt.Key_Tab);
            press(Qt.Key_Return);
            press(Qt.Key_Enter);
            press(Qt.Key_Space);
            press(Qt.Key_F10, Qt.ShiftModifier);
            mouseClick(grid, 150, 20, Qt.RightButton);
            press(Qt.Key_Right, Qt.ShiftModifier);
            compare(Array.from(asked, one => one.count).join(), "2,1,2,1");
            compare(asked[2].signalArguments[1][0], 1);
            compare(asked[3].signalArguments[0][1], 1);
            mouseClick(grid, 250, 20);
            compare(grid.currentIndex, 2);
        }

        function test_emptyGridTakesNoKeys() {
            const grid = make(grids, { model: 0 });
            press(Qt.Key_Tab);
            for (const key of [Qt.Key_Down, Qt.Key_End, Qt.Key_Return, Qt.Key_Menu])
                press(key);
            compare(grid.currentIndex, -1);
        }

        function test_resultTellsItsToneTextAndWay() {
            const line = make(results);
            const ends = spy(line, "dismissed");
            compare(line.Accessible.role, Accessible.AlertMessage);
            compare(line.Accessible.name, "Failed: Notes");
            compare(String(line.border.color), String(Theme.red));
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
            verify(toggle.Accessible.checkable);
            verify(!toggle.Accessible.checked);
            mouseClick(toggle);
            verify(toggle.Accessible.checked);
        }
    }
}
