import QtQuick
import Quillmere
import Quillmere.Gallery

// A control in one of its states, below the state's name.
Column {
    id: cell

    required property string modelData
    readonly property string pose: modelData
    property string usual: "Move to Trash"
    readonly property string word: GalleryPoses.word(pose, usual, GalleryPoses.sample)
    property string spoken: word // its name for assistive technology
    property int room: 160 // the widest that it may get
    default property alias content: stage.data

    function strike() {
        GalleryPoses.strike(stage, pose);
    }

    spacing: Theme.unit * 1.5
    // So that assistive technology goes through a cell at a time, and not through all that the gallery shows.
    Accessible.role: Accessible.Grouping
    Accessible.name: pose

    CaptionText {
        text: cell.pose
    }
    Item {
        id: stage
        objectName: "stage"
        width: childrenRect.width
        height: childrenRect.height
        enabled: cell.pose !== "disabled"
        LayoutMirroring.enabled: cell.pose === "right to left"
        LayoutMirroring.childrenInherit: true
    }
    // Parts that a new palette has made anew are without the pose.
    Connections {
        target: Theme
        function onIsDarkChanged() {
            cell.strike();
        }
    }
    Component.onCompleted: strike()
}
