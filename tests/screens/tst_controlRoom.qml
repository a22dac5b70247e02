pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Quillmere
import Quillmere.Screens

// How controls use the room that they have: what they show of what is too long, and what keeps its place.
Item {
    id: stage
    width: 800
    height: 600

    Component {
        id: ways
        Breadcrumbs {
            width: 400
            label: "Path"
            model: Array.from({ length: 20 }, (none, i) => `folder ${i}`)
        }
    }
    Component {
        id: folders
        RowList {
            width: 300
            height: 40
            model: 1
            delegate: FolderRow {
                text: "/home/me/Documents"
                detail: "12 files"
                canBeRemoved: true
                removeLabel: "Remove"
            }
        }
    }
    Component {
        id: ages
        AgePill {
            text: labels[0]
            labels: ["just now", "44 min ago", "refreshing soon"]
        }
    }

    SignalSpy {
        id: chosen
        signalName: "chosen"
    }

    ControlCase {
        name: "ControlRoom"
        stage: stage

        function isOnView(name) {
            return onView().split("\n").includes(name);
        }

        function verifyWholeCrumbs(way, signs) {
            tryVerify(() => Program.itemsWith("name", way).filter(item => item.name === "ellipsis").length === signs, patience,
                      `there are ${signs} signs`);
            const shown = Program.itemsWith("isStop", way);
            verify(shown.length > 0);
            for (const crumb of shown) {
                const left = crumb.mapToItem(way, 0, 0).x;
                verify(left >= 0 && left + crumb.width <= way.width, `${crumb.text} is whole`);
            }
        }

        function test_longWayShowsWholeCrumbsAndASignForTheRest_data() {
            return [{ tag: "from the left", isMirrored: false }, { tag: "from the right", isMirrored: true }];
        }

        function test_longWayShowsWholeCrumbsAndASignForTheRest(row) {
            const way = make(ways);
            way.LayoutMirroring.enabled = row.isMirrored;
            waitForRendering(stage);
            verifyWholeCrumbs(way, 1);
            way.forceActiveFocus(Qt.TabFocusReason);
            verify(isOnView("folder 19"));
            for (let i = 0; i < 10; ++i)
                press(row.isMirrored ? Qt.Key_Right : Qt.Key_Left);
            compare(focusItem().text, "folder 9");
            tryVerify(() => isOnView("folder 9"), patience);
            verifyWholeCrumbs(way, 2);
            press(Qt.Key_Home);
            tryVerify(() => isOnView("folder 0"), patience);
            verifyWholeCrumbs(way, 1);
            way.model = ["home", "me"];
            tryVerify(() => isOnView("home") && isOnView("me"), patience);
            verifyWholeCrumbs(way, 0);
        }

        function test_longNameIsNarrowedBelowTheSign_data() {
            return [{ tag: "from the left", isMirrored: false }, { tag: "from the right", isMirrored: true }];
        }

        function test_longNameIsNarrowedBelowTheSign(row) {
            const name = "a name that is longer than its room";
            const way = make(ways);
            way.width = 330;
            way.LayoutMirroring.enabled = row.isMirrored;
            way.model = ["home", name, "folder"];
            tryVerify(() => isOnView(name) && isOnView("folder") && !isOnView("home"), patience);
            const word = Program.textItem(name, way);
            const left = word.mapToItem(way, 0, 0).x;
            verify(word.truncated && left >= 0 && left + word.width <= way.width, "it is cut, and not cut off");
            chosen.clear();
            chosen.target = way;
            mouseClick(way, row.isMirrored ? way.width - way.signRoom / 2 : way.signRoom / 2, way.height / 2);
            compare(chosen.count, 1);
            compare(chosen.signalArguments[0][0], 1);
            way.model = ["home", name, "a folder with a name that takes the rest"];
            tryVerify(() => !isOnView(name), patience, "too little is left of it to be read");
        }

        function test_detailOfAFolderStandsApartFromItsButton() {
            const folder = make(folders).itemAtIndex(0);
            const detail = Program.textItem("12 files", folder);
            const end = detail.mapToItem(folder, detail.width, 0).x;
            verify(end + 8 <= folder.removeButton.mapToItem(folder, 0, 0).x);
        }

        function test_agePillKeepsItsWidth() {
            const pill = make(ages);
            const width = pill.width;
            for (const age of pill.labels) {
                pill.text = age;
                compare(pill.width, width);
                verify(!Program.textItem(age, pill).truncated, age);
            }
        }
    }
}
