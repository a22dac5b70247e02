import QtQuick
import Quillmere

// The rows of the screens under the heads of their sections.
ListView {
    id: list

    required property SidebarView sidebar

    model: sidebar.items
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    section.property: "sectionTitle"
    section.delegate: CaptionText {
        required property string section
        width: ListView.view.width
        height: 34
        leftPadding: Theme.unit * 2
        bottomPadding: Theme.unit
        verticalAlignment: Text.AlignBottom
        text: section
    }
    delegate: SidebarButton {
        width: ListView.view.width
        onClicked: (ListView.view as SidebarList).sidebar.select(index)
    }
}
