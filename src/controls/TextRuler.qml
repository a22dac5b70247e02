pragma Singleton

import QtQuick

// How much room words take: for what keeps its width while its word changes.
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
}
