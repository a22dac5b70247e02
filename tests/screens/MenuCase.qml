import QtQuick
import Quillmere.Screens

// What the tests of the menu bar share. Each begins with no menu open.
ScreenCase {
    readonly property var firstLines: ({ "Quillmere": "About Quillmere", "File": "New Folder…", "Edit": "Undo",
                                         "View": "Dashboard", "Tools": "Refresh Current View", "Help": "Quillmere Help" })

    function init() {
        clearAway();
        open("Organizer");
        Program.forget();
    }

    function verifyOpen(title) {
        tryVerify(() => Program.menuLines().startsWith(firstLines[title]), patience,
                  `the menu ${title} is open, and not\n${Program.menuLines()}`);
        const shown = Object.keys(firstLines).filter(other => menuTitle(other).isShown);
        compare(shown, [title]);
    }

    function verifyNoneOpen() {
        compare(Program.menuLines(), "");
        for (const title of Object.keys(firstLines))
            compare(String(colorOf(title)), "#00000000", `${title} is dark`);
    }

    function menuTitle(title) {
        return find(title, menuBar()).parent;
    }

    function colorOf(title) {
        return told(told(menuTitle(title), "background"), "children")[0].color;
    }
}
