pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// What a scan looks at. Folders dropped here from the desktop are added to the list.
Card {
    id: panel

    required property DuplicateFinderView view

    readonly property DuplicateScopeView scope: view.scope
    property bool isLow: false // in a low window its lists leave more room to what it is for
    readonly property int listHeight: isLow ? Theme.controlHeight * 3 : Theme.controlHeight * 4

    implicitHeight: columns.height + foot.height + Theme.unit * 11

    Row {
        id: columns
        x: Theme.unit * 4
        y: Theme.unit * 4
        width: parent.width - Theme.unit * 8
        spacing: Theme.unit * 6

        DuplicateScopeColumn {
            id: folders
            width: (parent.width - parent.spacing) / 2
            title: panel.view.texts.scanDirectories
            emptyText: panel.scope.hasScanPaths ? "" : panel.view.texts.noScanPaths
            addText: panel.view.texts.addFolder
            addSymbol: "folder.badge.plus"
            listHeight: panel.listHeight
            rows: panel.scope.scanPaths
            listName: "scanPathList"
            onAdded: panel.scope.addFolder()
            onOpened: row => panel.scope.changeScanPath(row)
            delegate: FolderRow {
                required property string pathText
                text: pathText
                hint: panel.view.texts.changeFolderTip
                canBeRemoved: true
                removeLabel: panel.view.texts.removeScanPath
                removeTip: panel.view.texts.removeScanPathTip
                removeButton.objectName: "removeScanPath"
                onClicked: panel.scope.changeScanPath(index)
                onRemoved: panel.scope.removeScanPath(index)
            }
        }
        DuplicateScopeColumn {
            width: folders.width
            title: panel.view.texts.ignoreDirectories
            emptyText: ""
            addText: panel.view.texts.addExclusion
            addSymbol: "folder.badge.minus"
            listHeight: panel.listHeight
            rows: panel.scope.rules
            listName: "ruleList"
            onAdded: panel.scope.addExclusion()
            delegate: RuleRow {
                required property string ruleText
                required property bool isOverridden
                required symbol
                required hint
                required canBeRemoved
                text: ruleText
                suffix: isOverridden ? panel.view.texts.overridden : ""
                removeTip: panel.view.texts.removeExclusionTip
                removeButton.objectName: "removeExclusion"
                onRemoved: panel.scope.removeExclusion(index)
            }
        }
    }
    Item {
        id: foot
        anchors.left: columns.left
        anchors.right: columns.right
        anchors.top: columns.bottom
        anchors.topMargin: Theme.unit * 3
        height: Theme.controlHeight

        Symbol {
            id: noteIcon
            anchors.verticalCenter: parent.verticalCenter
            name: "info.circle"
            size: 13
            color: Theme.secondText
        }
        BodyText {
            anchors.left: noteIcon.right
            anchors.leftMargin: Theme.unit * 2
            anchors.right: sizes.left
            anchors.rightMargin: Theme.unit * 4
            anchors.verticalCenter: parent.verticalCenter
            text: panel.view.texts.lockNote
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
        Row {
            id: sizes
            anchors.right: parent.right
            spacing: Theme.unit * 2
            BodyText {
                anchors.verticalCenter: parent.verticalCenter
                text: panel.view.texts.minFileSize
                color: Theme.secondText
            }
            Picker {
                id: picker
                objectName: "minSizePicker"
                label: panel.view.texts.minFileSize
                shownText: panel.scope.minSizeText
                model: panel.scope.minSizeLabels
                chosenIndex: panel.scope.minSizeIndex
                onChosen: index => panel.scope.chooseMinSize(index)
            }
            ActionButton {
                objectName: "resetScope"
                enabled: panel.scope.canReset
                text: panel.view.texts.reset
                symbol: "arrow.uturn.backward"
                tip: panel.view.texts.resetTip
                onClicked: panel.scope.resetToDefaults()
            }
        }
    }
    FolderDrop {
        objectName: "scopeDrop"
        anchors.fill: parent
        text: panel.view.texts.dropHere
        onFoldersDropped: urls => panel.scope.dropFolders(urls)
    }
}
