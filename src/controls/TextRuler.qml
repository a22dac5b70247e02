pragma Singleton

import QtQuick

// How much room words take: for what keeps its width while its word changes, and what has them in its middle.
QtObject {
    id: ruler

    readonly property FontMetrics metrics: FontMetrics { }

    // Whole pixels that hold each of the words in that font.
    function widest(words, font) {
        metrics.font = font;
        let most = 0;
        for (const word of words)
            most = Math.max(most, metrics.advanceWidth(word));
        return Math.ceil(most);
    }

    // How far below the middle a line of that font begins its letters, for its capitals and digits to stand in the middle. The
    // box around a text has more room above them than below, or less, as the font likes it.
    function baselineOffset(font) {
        const scale = 16; // whole pixels of a small letter would be too coarse
        metrics.font = Qt.font({ family: font.family, weight: font.weight, pixelSize: font.pixelSize * scale });
        return -metrics.tightBoundingRect("H").y / scale / 2;
    }
}
