import QtQuick
import QtQuick.Templates as T
import Quillmere

// The strip above the screen, with the search pill.
Item {
    id: bar

    required property MainContentView main

    implicitHeight: 48
    Accessible.role: Accessible.ToolBar
    Accessible.name: main.titleBarName

    Shortcut {
        sequence: bar.main.searchSequence
        onActivated: bar.main.openSearch()
    }

    T.Button {
        id: pill

        objectName: "searchPill"
        anchors.centerIn: parent
        width: 320
        height: 30
        leftPadding: Theme.unit
        rightPadding: Theme.unit * 1.5
        hoverEnabled: true
        focusPolicy: Qt.StrongFocus
        text: bar.main.searchPlaceholder
        onClicked: bar.main.openSearch()
        Accessible.description: bar.main.searchTip
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()

        contentItem: Item {
            Symbol {
                id: glass
                anchors.left: parent.left
                anchors.leftMargin: Theme.unit
                anchors.verticalCenter: parent.verticalCenter
                name: "magnifyingglass"
                size: 13
            }
            BodyText {
                anchors.left: glass.right
                anchors.leftMargin: Theme.unit * 2
                anchors.verticalCenter: parent.verticalCenter
                text: pill.text
                color: Theme.secondText
            }
            Pill {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: hint.implicitWidth + Theme.unit * 3
                height: 18
                radius: Theme.tileRadius
                color: Theme.raised
                borderColor: Theme.line
                BodyText {
                    id: hint
                    anchors.centerIn: parent
                    text: bar.main.searchHint
                    color: Theme.secondText
                    font.pixelSize: Theme.captionSize
                }
            }
        }
        background: Pill {
            radius: Theme.controlRadius
            color: pill.hovered ? Theme.raised : Theme.card
            borderColor: Theme.line
            FocusRing {
                visible: pill.visualFocus
            }
        }
        Tip {
            control: pill
            isDue: pill.hovered && !pill.down
            text: bar.main.searchTip
        }
    }
    Divider {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
    }
}
