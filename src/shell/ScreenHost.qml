import QtQuick
import Quillmere

// Shows the selected screen. A screen that is opened has the keyboard, whichever way led to it, and also when it was on
// view already.
FocusScope {
    id: host

    required property MainContentView main

    function load() {
        loader.setSource(Qt.resolvedUrl("../" + main.screenSource), { "view": main.screen });
    }

    Accessible.role: Accessible.Pane
    Accessible.name: main.screenTitle
    Component.onCompleted: load()

    Loader {
        id: loader
        anchors.fill: parent
        focus: true
        onLoaded: (item as Item).focus = true
    }
    Connections {
        target: host.main
        function onScreenChanged() {
            host.load();
        }
        // Asks for the focus among what is in the window, so that a sheet or a question that is up keeps it.
        function onScreenOpened() {
            host.focus = true;
        }
    }
}
