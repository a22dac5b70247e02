pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// What stands in a row and is one stop of the Tab key: segments, tabs, crumbs.
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
            compare(Program.spoken(focusItem()).role, Accessible.RadioButton);
            compare(Program.spoken(focusItem()).states, "checkable checked");
            const strip = make(tabs);
            strip.forceActiveFocus(Qt.TabFocusReason);
            press(Qt.Key_Tab);
            const tab = Program.itemWith("isChosen", strip, true);
            compare(Program.spoken(tab).role, Accessible.PageTab);
            compare(Program.spoken(tab).states, "selectable selected");
            compare(Program.spoken(group).name, "Sort");
        }

        function test_segmentsOfSymbolsAloneHaveNames() {
            const group = make(segments, { labels: ["List view", "Grid view"], symbols: ["list.bullet", "square.grid.2x2"],
                                           areTextsShown: false });
            verify(!onView().includes("List view"));
            const first = Program.itemWith("isChosen", group);
            compare(Program.spoken(first).name, "List view");
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
    }
}
