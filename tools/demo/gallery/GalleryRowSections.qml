pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Gallery

// Rows, and what chooses among them.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "ChipRow"
        role: Accessible.Grouping
        poses: ["normal", "disabled", "right to left"]
        GalleryCell {
            id: chips
            usual: "Type"
            ChipRow {
                width: 320
                doesWrap: true
                label: chips.word
                model: ListModel {
                    ListElement {
                        label: "All"
                        countText: "128"
                        isSelected: true
                    }
                    ListElement {
                        label: "Images"
                        countText: "64"
                        isSelected: false
                    }
                    ListElement {
                        label: "Documents"
                        countText: "7"
                        isSelected: false
                    }
                }
            }
        }
    }
    GallerySection {
        control: "FolderRow"
        role: Accessible.ListItem
        toldStates: ["selectable"]
        poses: ["normal", "hovered", "pressed", "disabled", "long text", "right to left"]
        GalleryCell {
            id: folder
            usual: "/home/robin/Documents"
            RowList {
                width: 300 + gutter
                height: Theme.controlHeight
                activeFocusOnTab: false
                model: 1
                delegate: FolderRow {
                    text: folder.word
                    detail: "12 files"
                    canBeRemoved: true
                    removeLabel: "Remove"
                }
            }
        }
    }
    GallerySection {
        control: "RuleRow"
        role: Accessible.ListItem
        toldStates: ["selectable"]
        poses: ["normal", "hovered", "pressed", "disabled", "long text", "right to left"]
        GalleryCell {
            id: rule
            usual: "node_modules"
            RowList {
                width: 300 + gutter
                height: Theme.controlHeight
                activeFocusOnTab: false
                model: 1
                delegate: RuleRow {
                    text: rule.word
                    symbol: "lock.fill"
                    canBeRemoved: true
                    removeTip: "Remove"
                }
            }
        }
    }
    GallerySection {
        control: "RowBackground"
        poses: ["normal", "hovered", "pressed", "current", "its menu is open"]
        GalleryCell {
            id: ground
            RowBackground {
                width: 160
                height: Theme.rowHeight
                isHovered: ground.pose === "hovered"
                isDown: ground.pose === "pressed"
                isCurrent: ground.pose === "current"
                isMenuTarget: ground.pose === "its menu is open"
            }
        }
    }
    GallerySection {
        control: "ListRow"
        role: Accessible.ListItem
        toldStates: ["selectable"]
        poses: ["normal", "hovered", "pressed", "its menu is open", "disabled", "long text", "right to left"]
        GalleryCell {
            id: rowCell
            usual: "thesis-final.pdf"
            RowList {
                id: oneRow
                width: 240
                height: Theme.rowHeight
                activeFocusOnTab: false
                menuRow: rowCell.pose === "its menu is open" ? 0 : -1
                model: 1
                delegate: ListRow {
                    text: rowCell.word
                    contentItem: BodyText {
                        text: rowCell.word
                        color: enabled ? Theme.text : Theme.disabledText
                    }
                }
            }
        }
    }
    GallerySection {
        control: "RowList"
        role: Accessible.List
        poses: ["normal", "disabled"]
        GalleryCell {
            id: listCell
            usual: "Largest folders"
            RowList {
                width: 300
                height: Theme.rowHeight * 3
                Accessible.name: listCell.word
                model: 12
                currentIndex: 1
                delegate: ListRow {
                    id: listRow
                    text: "Folder " + (listRow.index + 1)
                    contentItem: BodyText {
                        text: listRow.text
                    }
                }
            }
        }
    }
    GallerySection {
        control: "TileGrid"
        role: Accessible.List
        poses: ["normal", "disabled"]
        GalleryCell {
            id: gridCell
            TileGrid {
                width: 320
                height: 160
                cellWidth: 80
                cellHeight: 80
                Accessible.name: gridCell.word
                model: 6
                delegate: RowBackground {
                    required property int index
                    width: 76
                    height: 76
                    isHovered: index === 1
                    isCurrent: index === 2
                }
            }
        }
    }
}
