import QtQuick
import Quillmere

// How full the disk is.
Pill {
    id: widget

    required property SidebarView sidebar

    implicitHeight: column.implicitHeight + Theme.unit * 5
    radius: Theme.cardRadius
    color: Theme.raised
    borderColor: Theme.line
    Accessible.role: Accessible.Grouping
    Accessible.name: sidebar.diskName

    Column {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.unit * 2.5
        spacing: Theme.unit * 1.5

        Item {
            width: parent.width
            height: 20
            Symbol {
                id: drive
                anchors.verticalCenter: parent.verticalCenter
                name: "internaldrive"
                size: 13
            }
            BodyText {
                anchors.left: drive.right
                anchors.leftMargin: Theme.unit * 1.5
                anchors.right: refresh.left
                anchors.verticalCenter: parent.verticalCenter
                text: widget.sidebar.volumeName
                font.weight: Font.DemiBold
                font.pixelSize: Theme.smallSize
            }
            IconButton {
                id: refresh
                objectName: "refreshDiskButton"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: 20
                height: 20
                symbol: ""
                label: widget.sidebar.refreshTip
                tip: widget.sidebar.refreshTip
                onClicked: widget.sidebar.refreshDiskUsage()
                Spinner {
                    objectName: "refreshDiskSpinner"
                    anchors.centerIn: parent
                    size: 12
                    isRunning: widget.sidebar.isRefreshingDisk
                }
            }
        }
        ShareBar {
            width: parent.width
            share: widget.sidebar.usedShare
            fill: widget.sidebar.isNearlyFull ? "#f85149" : Theme.accent
        }
        Item {
            width: parent.width
            height: 14
            BodyText {
                anchors.left: parent.left
                text: widget.sidebar.usedText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                color: Theme.secondText
                font.pixelSize: Theme.captionSize
            }
            BodyText {
                anchors.right: parent.right
                text: widget.sidebar.freeText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                color: Theme.secondText
                font.pixelSize: Theme.captionSize
            }
        }
    }
}
