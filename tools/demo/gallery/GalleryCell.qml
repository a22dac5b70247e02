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
    property int room: 160 // the widest that it may get
    default property alias content: stage.data

    spacing: Theme.unit * 1.5

    CaptionText {
        text: cell.pose
    }
    Item {
        id: stage
        objectName: "stage"
        width: childrenRect.width
        height: childrenRect.height
        enabled: cell.pose !== "disabled"
    }
    Component.onCompleted: GalleryPoses.strike(stage, pose)
}
