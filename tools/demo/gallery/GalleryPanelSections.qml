import QtQuick
import Quillmere
import Quillmere.Gallery

// What takes up a part of a screen.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "Divider"
        poses: ["across", "upright"]
        GalleryCell {
            id: divider
            Divider {
                width: divider.pose === "across" ? divider.room : implicitWidth
                height: divider.pose === "upright" ? Theme.controlHeight : implicitHeight
            }
        }
    }
    GallerySection {
        control: "Card"
        poses: ["normal"]
        GalleryCell {
            Card {
                width: 240
                height: 80
            }
        }
    }
    GallerySection {
        control: "CardSlice"
        poses: ["first", "between", "last", "alone"]
        GalleryCell {
            id: slice
            CardSlice {
                width: 160
                height: Theme.rowHeight
                isFirst: slice.pose === "first" || slice.pose === "alone"
                isLast: slice.pose === "last" || slice.pose === "alone"
            }
        }
    }
    GallerySection {
        control: "EmptyState"
        role: Accessible.StaticText
        toldStates: ["readOnly"]
        poses: GalleryPoses.still
        GalleryCell {
            id: empty
            usual: "No duplicates found"
            EmptyState {
                width: 260
                symbol: "checkmark.circle.fill"
                text: empty.word
                detail: empty.word
            }
        }
    }
    GallerySection {
        control: "EmptyState"
        variant: "of a whole screen"
        role: Accessible.Heading
        poses: GalleryPoses.still
        GalleryCell {
            id: whole
            usual: "Search"
            EmptyState {
                width: 260
                isScreen: true
                symbol: "magnifyingglass"
                text: whole.word
                detail: whole.word
            }
        }
    }
    GallerySection {
        control: "LoadingLine"
        role: Accessible.StaticText
        toldStates: ["readOnly"]
        poses: ["normal", "disabled", "right to left"]
        GalleryCell {
            id: loading
            usual: "Loading contents..."
            LoadingLine {
                text: loading.word
            }
        }
    }
    GallerySection {
        control: "ToolHead"
        role: Accessible.Heading
        poses: ["normal", "disabled", "right to left"]
        GalleryCell {
            id: head
            usual: "Duplicate Finder"
            ToolHead {
                width: 900
                title: head.word
                symbol: "doc.on.doc"
                subtitle: head.word
                figures: Figure {
                    label: "GROUPS"
                    value: "128"
                }
                ActionButton {
                    text: "Stop"
                }
                ActionButton {
                    text: "Start Scan"
                    isPrimary: true
                }
            }
        }
    }
    GallerySection {
        control: "ScanCommands"
        role: Accessible.Button
        poses: ["normal", "while it scans", "disabled", "right to left"]
        GalleryCell {
            id: commands
            usual: "Start Scan"
            spoken: pose === "while it scans" ? "Stop" : word
            ScanCommands {
                isScanning: commands.pose === "while it scans"
                canScan: !isScanning
                scanText: commands.word
                scanSymbol: "magnifyingglass"
                stopText: "Stop"
                stopTip: ""
                busyText: "1,204 files"
                isPrimary: true
            }
        }
    }
    GallerySection {
        control: "ScanProgress"
        role: Accessible.ProgressBar
        poses: GalleryPoses.still
        GalleryCell {
            id: progress
            usual: "Comparing contents"
            ScanProgress {
                width: 400
                height: 150
                percentText: "42%"
                share: 0.42
                text: progress.word
                pathText: progress.word
            }
        }
    }
    GallerySection {
        control: "FootBar"
        role: Accessible.StaticText
        toldStates: ["readOnly"]
        poses: GalleryPoses.still
        GalleryCell {
            id: foot
            usual: "3 files will go"
            FootBar {
                width: 560
                text: foot.word
                symbol: "trash"
                tint: Theme.red
                action.text: "Move to Trash"
                action.isDestructive: true
            }
        }
    }
    GallerySection {
        control: "FolderDrop"
        poses: ["dragged over"]
        GalleryCell {
            id: drop
            FolderDrop {
                width: 240
                height: 80
                text: drop.word
            }
        }
    }
}
