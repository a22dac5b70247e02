pragma Singleton

import QtQuick

// Every colour, size and duration of the look. Spacing goes in steps of 4. Each text colour has a contrast of at least 4.5 on each
// ground, under the pointer and selected as well, and `disabledText` of 3 where nothing is laid over the ground.
QtObject {
    property bool isDark: true // set by the window, which follows the system

    readonly property color window: isDark ? "#0d1117" : "#ffffff"
    readonly property color sidebar: isDark ? "#161b22" : "#f6f8fa"
    readonly property color card: isDark ? "#161b22" : "#ffffff"
    readonly property color raised: isDark ? "#1c2128" : "#f6f8fa"
    readonly property color line: isDark ? "#30363d" : "#d0d7de"
    readonly property color text: isDark ? "#e6edf3" : "#1f2328"
    readonly property color secondText: isDark ? "#8b949e" : "#59636e"
    readonly property color disabledText: isDark ? "#707883" : "#7f8790"
    readonly property color accent: isDark ? "#58a6ff" : "#085ec4"
    readonly property color accentText: isDark ? "#0d1117" : "#ffffff"
    readonly property color green: isDark ? "#3fb950" : "#176f30"
    readonly property color amber: isDark ? "#d29922" : "#855900"
    readonly property color red: isDark ? "#f85149" : "#bf1f2a"
    readonly property color redText: isDark ? "#ff7b72" : "#bf1f2a"
    readonly property color free: isDark ? "#21262d" : "#e4e9ee"

    // Laid over what is under the pointer or pressed.
    readonly property color hover: isDark ? "#0dffffff" : "#0c000000"
    readonly property color pressed: isDark ? "#33000000" : "#18000000"
    readonly property color selected: isDark ? "#331f6feb" : "#1f0969da"

    readonly property color tileOutline: "#66ffffff" // 0.4 of white, around the tile under the pointer
    readonly property color backdrop: isDark ? "#a6010409" : "#661f2328" // over the window, behind a sheet

    // A colour of the data as the ink of a symbol: those are made for dark grounds.
    function ink(tint: color): color {
        return isDark ? tint : Qt.darker(tint, 1.7);
    }

    readonly property int cardRadius: 8
    readonly property int controlRadius: 6
    readonly property int tileRadius: 4
    readonly property int unit: 4

    readonly property int bodySize: 13
    readonly property int smallSize: 12
    readonly property int captionSize: 11
    readonly property int titleSize: 20
    readonly property int rowHeight: 32
    readonly property int controlHeight: 28

    readonly property int quick: 120 // ms
    readonly property int calm: 180  // ms

    readonly property string symbolFamily: "Quillmere Symbols"
}
