import QtQuick
import Quillmere
import Quillmere.Gallery

// One control in its states: a cell for each.
Column {
    id: section

    required property string control // the name of its file
    property string variant
    property int role: Accessible.NoRole // in which its cells speak to assistive technology; none for what is only drawn
    property var toldStates: []          // with these states, by the toolkit's names, besides those of the pose
    property var poses: GalleryPoses.all
    default property Component cell

    width: parent ? parent.width : 0
    spacing: Theme.unit * 3
    Accessible.role: Accessible.Grouping
    Accessible.name: title.text

    BodyText {
        id: title
        text: section.variant.length > 0 ? section.control + ", " + section.variant : section.control
        font.weight: Font.DemiBold
    }
    Flow {
        width: parent.width
        spacing: Theme.unit * 5
        Repeater {
            model: section.poses
            delegate: section.cell
        }
    }
}
