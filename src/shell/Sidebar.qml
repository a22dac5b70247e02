import QtQuick
import Quillmere

// The screens in their sections, the disk widget and the buttons of the sheets.
Rectangle {
    id: bar

    required property SidebarView sidebar
    required property MenuBarView commands

    width: 220
    color: Theme.sidebar
    Accessible.role: Accessible.Pane
    Accessible.name: sidebar.name

    AnvilMark {
        id: mark
        x: Theme.unit * 4
        y: Theme.unit * 4
        width: 26
        height: 26
    }
    BodyText {
        anchors.left: mark.right
        anchors.leftMargin: Theme.unit * 2.5
        anchors.verticalCenter: mark.verticalCenter
        text: "Quillmere"
        font.pixelSize: 16
        font.weight: Font.DemiBold
    }
    SidebarList {
        objectName: "sidebarList"
        anchors.top: mark.bottom
        anchors.topMargin: Theme.unit * 3
        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.unit * 2
        sidebar: bar.sidebar
    }
    Column {
        id: footer
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.unit * 3
        spacing: Theme.unit * 2

        DiskWidget {
            width: parent.width
            sidebar: bar.sidebar
        }
        SidebarFooter {
            width: parent.width
            sidebar: bar.sidebar
        }
    }
    Divider {
        anchors.right: parent.right
        height: parent.height
    }
}
