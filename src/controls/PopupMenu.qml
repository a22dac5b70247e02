import QtQuick
import QtQuick.Controls.Basic
import Quillmere

// A menu in the look of the program. Its items are MenuLine, which is a divider where it says so.
Menu {
    id: menu

    // Opens at the pointer, or below `item` where a key has asked for it.
    function openNear(item) {
        if (!item)
            return popup();
        const corner = item.mapToItem(parent, Theme.unit * 8, item.height);
        popup(corner.x, corner.y);
        lightFirst();
    }

    // Whoever opens a menu by key goes on by key, so its first line that does something is the current one.
    function lightFirst() {
        currentIndex = -1;
        step(1);
    }

    // Lights the next line (1) or the one before (-1) that does something, round the menu.
    function step(by) {
        let next = by < 0 ? Math.max(currentIndex, 0) : currentIndex;
        for (let tried = 0; tried < count; ++tried) {
            next = (next + by + count) % count;
            if (itemAt(next).enabled) {
                currentIndex = next;
                return;
            }
        }
    }

    padding: Theme.unit
    margins: Theme.unit
    overlap: 1
    delegate: MenuLine { }
    background: Pill {
        implicitWidth: 200
        color: Theme.raised
        radius: Theme.controlRadius
        borderColor: Theme.line
    }
    // As wide as its widest line.
    width: {
        let widest = 200;
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i).implicitWidth);
        return widest + leftPadding + rightPadding;
    }

    // Left to the toolkit, Tab would take the keyboard on into the window behind (Qt 6.8) or move it without the light.
    Shortcut {
        sequence: "Tab"
        enabled: menu.visible
        onActivated: menu.step(1)
    }
    Shortcut {
        sequences: ["Backtab", "Shift+Tab"]
        enabled: menu.visible
        onActivated: menu.step(-1)
    }
}
