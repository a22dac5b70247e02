pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// What is pressed: by mouse, by Space, by Return and by the keypad's Enter.
Item {
    id: stage
    width: 800
    height: 600

    Component {
        id: action
        ActionButton { text: "Clean" }
    }
    Component {
        id: primary
        ActionButton {
            text: "Scan"
            isPrimary: true
        }
    }
    Component {
        id: icon
        IconButton { symbol: "trash"; label: "Remove rule"; tip: "Removes it" }
    }
    Component {
        id: link
        LinkButton { text: "View Details"; tip: "Disabled while a scan is in progress." }
    }
    Component {
        id: tick
        TickBox {
            isTicked: false
            label: "notes.txt"
            onClicked: isTicked = !isTicked
        }
    }
    Component {
        id: toggle
        ToggleSwitch {
            isOn: false
            text: "Show hidden files"
            onClicked: isOn = !isOn
        }
    }
    Component {
        id: disclosure
        Disclosure {
            isExpanded: false
            text: "ADVANCED"
            onClicked: isExpanded = !isExpanded
        }
    }

    ControlCase {
        name: "ControlButtons"
        stage: stage

        function kinds() {
            return [
                { tag: "action", kind: action, role: Accessible.Button, name: "Clean" },
                { tag: "icon", kind: icon, role: Accessible.Button, name: "Remove rule" },
                { tag: "link", kind: link, role: Accessible.Link, name: "View Details" },
                { tag: "tick", kind: tick, role: Accessible.CheckBox, name: "notes.txt", states: "checkable",
                  pressedStates: "checkable checked" },
                { tag: "switch", kind: toggle, role: Accessible.CheckBox, name: "Show hidden files", states: "checkable",
                  pressedStates: "checkable checked" },
                { tag: "disclosure", kind: disclosure, role: Accessible.Button, name: "ADVANCED", states: "collapsed expandable",
                  pressedStates: "expandable expanded" },
            ];
        }

        function test_mouseAndKeysPress_data() {
            return kinds();
        }

        function test_mouseAndKeysPress(row) {
            const button = make(row.kind);
            const clicks = spy(button, "clicked");
            mouseClick(button);
            compare(clicks.count, 1);
            button.forceActiveFocus(Qt.TabFocusReason);
            for (const key of [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter])
                press(key);
            compare(clicks.count, 4);
            for (let i = 0; i < 10; ++i)
                press(Qt.Key_Return);
            compare(clicks.count, 14);
        }

        function test_disabledTakesNothing_data() {
            return kinds();
        }

        function test_disabledTakesNothing(row) {
            const button = make(row.kind, { enabled: false });
            const clicks = spy(button, "clicked");
            mouseClick(button);
            button.forceActiveFocus(Qt.TabFocusReason);
            press(Qt.Key_Return);
            compare(clicks.count, 0);
            verify(!button.activeFocus);
        }

        function test_tellsRoleNameAndState_data() {
            return kinds();
        }

        function test_tellsRoleNameAndState(row) {
            const button = make(row.kind);
            const told = Program.spoken(button);
            compare(told.role, row.role);
            compare(told.name, row.name);
            compare(told.states, row.states ?? "");
            button.clicked();
            compare(Program.spoken(button).states, row.pressedStates ?? "");
            button.enabled = false;
            verify(Program.spoken(button).states.includes("disabled"));
        }

        function test_ringIsShownForTheKeyboardAlone_data() {
            return kinds();
        }

        function test_ringIsShownForTheKeyboardAlone(row) {
            const button = make(row.kind);
            mouseClick(button);
            verify(button.activeFocus);
            verify(!button.background.hasRing);
            stage.forceActiveFocus();
            button.forceActiveFocus(Qt.TabFocusReason);
            verify(button.background.hasRing);
        }

        function test_ringIsSeenOnEveryGround_data() {
            return kinds().concat([{ tag: "primary", kind: primary }]);
        }

        // Below the upper edge, where no word stands.
        function test_ringIsSeenOnEveryGround(row) {
            const button = make(row.kind);
            const edge = () => {
                const picture = grabImage(button);
                return Array.from([0, 1, 2, 3], y => String(picture.pixel(Math.round(button.width / 2), y)));
            };
            const before = edge();
            button.forceActiveFocus(Qt.TabFocusReason);
            verify(button.background.hasRing);
            verify(edge().some((colour, y) => colour !== before[y]), edge());
        }

        function test_longTextIsCutAndToldByTheTooltip_data() {
            return kinds().filter(row => row.tag !== "icon");
        }

        function test_longTextIsCutAndToldByTheTooltip(row) {
            const button = make(row.kind, { text: longText() });
            verify(button.width <= 480, button.width);
            verify(button.isCut);
        }

        function test_sizesAreWholePixels_data() {
            return kinds();
        }

        function test_sizesAreWholePixels(row) {
            const button = make(row.kind);
            compare(button.width, Math.round(button.width));
            compare(button.height, Math.round(button.height));
        }

        function test_disabledTellsWhy() {
            const button = make(link, { enabled: false });
            mouseMove(button, 5, 5);
            tryVerify(() => onView().includes("Disabled while"), patience);
        }
    }
}
