pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// How controls use the room that they have: what they show of what is too long, and what keeps its place.
Item {
    id: stage
    width: 800
    height: 600

    Component {
        id: folders
        FolderRow {
            width: 300
            text: "/home/me/Documents"
            detail: "12 files"
            canBeRemoved: true
            removeLabel: "Remove"
        }
    }
    Component {
        id: ages
        AgePill {
            text: labels[0]
            labels: ["just now", "44 min ago", "refreshing soon"]
        }
    }

    ControlCase {
        name: "ControlRoom"
        stage: stage

        function test_detailOfAFolderStandsApartFromItsButton() {
            const folder = make(folders);
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
