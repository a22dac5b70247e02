import QtQuick
import Quillmere

// Takes folders that are dropped from the desktop on what lies below it, and says so while they are held over it.
DropArea {
    id: drop

    required property string text

    signal foldersDropped(var urls)

    keys: ["text/uri-list"]
    onDropped: event => take(event)

    function take(event) {
        event.accept(Qt.CopyAction);
        foldersDropped(event.urls);
    }

    Pill {
        anchors.fill: parent
        visible: drop.containsDrag
        radius: Theme.cardRadius
        color: Qt.alpha(Qt.tint(Theme.card, Theme.selected), 0.92) // what lies below it is not to be read now
        borderColor: Theme.accent
        BodyText {
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - Theme.unit * 4)
            text: drop.text
            color: Theme.accent
            font.weight: Font.DemiBold
        }
    }
}
