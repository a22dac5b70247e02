import QtQuick
import Quillmere.Screens

// Measures whether every text on view can be told from what is behind it, for a test that goes through the states of a screen.
// What falls short is gathered, so that one run tells all of it.
QtObject {
    id: meter

    required property ScreenCase test

    readonly property var palettes: [{ tag: "dark", isDark: true }, { tag: "light", isDark: false }]

    property var faint: []

    function measure(where) {
        Program.settle();
        Program.picture(`contrast-${where}`);
        const texts = Program.faintTexts();
        if (texts !== "")
            faint.push(`${where}: ${texts}`);
    }

    // With the pointer on each of the items.
    function measureHovered(items, where) {
        for (let i = 0; i < items.length; ++i) {
            test.mouseMove(items[i]);
            measure(`${where} ${i}`);
        }
        test.restPointer();
    }

    // What takes clicks, one of each word.
    function buttons(under) {
        const words = [];
        return Program.itemsWith("down", under).filter(item => {
            const isNew = item.enabled && !words.includes(item.text);
            words.push(item.text);
            return isNew;
        });
    }

    // What fell short since the last time, a line each.
    function take() {
        const found = faint.join("\n");
        faint = [];
        return found;
    }
}
