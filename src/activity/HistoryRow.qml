// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// One entry of the log, with what it hides until it is expanded.
ListRow {
    id: row

    required property string symbol
    required property string tint
    required property string headline
    required property string entryTitle
    required property bool isFailed
    required property bool isExpandable
    required property bool isExpanded
    required property string toggleLabel
    required property string detail
    required property string filesHeading
    required property list<string> shownPaths
    required property string moreText
    required property string spokenText
    required property HistoryView view

    signal detailsToggled

    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.unit * 2
    text: entryTitle
    spoken: spokenText
    tip: hovered && title.truncated ? entryTitle : ""
    onClicked: detailsToggled()

    contentItem: Column {
        spacing: Theme.unit * 2

        Item {
            id: head
            width: parent.width
            height: 36

            Pill {
                id: badge
                anchors.verticalCenter: parent.verticalCenter
                width: 32
                height: 32
                radius: Theme.controlRadius
                color: Theme.free
                Symbol {
                    anchors.centerIn: parent
                    name: row.symbol
                    size: 15
                    color: Theme.ink(row.tint)
                }
            }
            BodyText {
                id: headline
                anchors.left: badge.right
                anchors.leftMargin: Theme.unit * 3
                anchors.right: failed.left
                anchors.top: parent.top
                text: row.headline
                color: Theme.secondText
                font.pixelSize: Theme.smallSize
            }
            BodyText {
                id: title
                anchors.left: headline.left
                anchors.right: headline.right
                anchors.bottom: parent.bottom
                text: row.entryTitle
                maximumLineCount: 1
            }
            Badge {
                id: failed
                anchors.right: toggle.left
                anchors.verticalCenter: parent.verticalCenter
                visible: row.isFailed
                width: visible ? implicitWidth : 0
                text: row.view.texts.failed
                tint: Theme.red
            }
            Disclosure {
                id: toggle
                objectName: "historyToggle"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                visible: row.isExpandable
                isExpanded: row.isExpanded
                closedSymbol: "chevron.down"
                openSymbol: "chevron.up"
                label: row.toggleLabel
                focusPolicy: Qt.NoFocus
                onClicked: row.detailsToggled()
            }
        }
        Loader {
            width: parent.width
            active: row.isExpanded
            visible: active
            sourceComponent: HistoryDetails {
                detail: row.detail
                filesHeading: row.filesHeading
                shownPaths: row.shownPaths
                moreText: row.moreText
            }
        }
    }
    background: Item {
        RowBackground {
            width: parent.width
            height: head.height + row.topPadding + row.bottomPadding
            isCurrent: row.isCurrent
            isDown: row.down
            isHovered: row.hovered
            isMenuTarget: row.isMenuTarget
        }
    }
}
