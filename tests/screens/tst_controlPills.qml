pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// Where the words of pills stand.
Item {
    id: stage
    width: 800
    height: 600

    Component {
        id: badge
        Badge {
            text: "HEH"
            tint: "white"
        }
    }
    Component {
        id: keeper
        Badge {
            text: "HEH"
            tint: "white"
            symbol: "trash"
        }
    }
    Component {
        id: count
        Badge {
            text: "2828"
            tint: "white"
            isQuiet: true
        }
    }
    Component {
        id: chip
        FilterChip {
            label: "HEH"
            countText: ""
            isSelected: false
        }
    }

    ControlCase {
        name: "ControlPills"
        stage: stage

        // The lines of the picture that hold ink, but for the outline.
        function inkLines(control) {
            const picture = grabImage(control);
            const from = Math.floor(control.width / 2);
            const lines = [];
            for (let y = 2; y < control.height - 2; ++y) {
                for (let x = from; x < control.width - 8; ++x) {
                    if (picture.red(x, y) > 150) {
                        lines.push(y);
                        break;
                    }
                }
            }
            return lines;
        }

        function test_capitalsStandInTheMiddle_data() {
            return [
                { tag: "badge", kind: badge },
                { tag: "badge with a symbol", kind: keeper },
                { tag: "count", kind: count },
                { tag: "chip", kind: chip },
            ];
        }

        function test_capitalsStandInTheMiddle(row) {
            const lines = inkLines(make(row.kind));
            verify(lines.length > 4, lines);
            const control = make(row.kind);
            const above = lines[0];
            const below = control.height - 1 - lines[lines.length - 1];
            verify(Math.abs(above - below) <= 1, `${above} above and ${below} below`);
        }
    }
}
