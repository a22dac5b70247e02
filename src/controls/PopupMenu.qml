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
        let first = 0;
        while (first < count && !itemAt(first).enabled)
            ++first;
        currentIndex = first < count ? first : -1;
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
}
