import QtQuick
import Quillmere

// Shows the selected screen.
FocusScope {
    id: host

    required property MainContentView main

    function load() {
        loader.setSource(Qt.resolvedUrl("../" + main.screenSource), { "view": main.screen });
    }

    Component.onCompleted: load()

    Loader {
        id: loader
        anchors.fill: parent
        focus: true
    }
    Connections {
        target: host.main
        function onScreenChanged() {
            host.load();
        }
    }
}
