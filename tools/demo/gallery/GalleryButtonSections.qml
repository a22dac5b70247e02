import QtQuick
import Quillmere
import Quillmere.Gallery

// Buttons and what else is pressed.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "ActionButton"
        role: Accessible.Button
        GalleryCell {
            id: plain
            ActionButton {
                width: Math.min(implicitWidth, plain.room)
                text: plain.word
            }
        }
    }
    GallerySection {
        control: "ActionButton"
        variant: "with a symbol"
        role: Accessible.Button
        GalleryCell {
            id: marked
            ActionButton {
                width: Math.min(implicitWidth, marked.room)
                text: marked.word
                symbol: "folder"
            }
        }
    }
    GallerySection {
        control: "ActionButton"
        variant: "destructive"
        role: Accessible.Button
        GalleryCell {
            id: destructive
            ActionButton {
                width: Math.min(implicitWidth, destructive.room)
                text: destructive.word
                symbol: "trash"
                isDestructive: true
            }
        }
    }
    GallerySection {
        control: "ActionButton"
        variant: "primary"
        role: Accessible.Button
        GalleryCell {
            id: primary
            ActionButton {
                width: Math.min(implicitWidth, primary.room)
                text: primary.word
                symbol: "magnifyingglass"
                isPrimary: true
            }
        }
    }
    GallerySection {
        control: "ActionButton"
        variant: "busy"
        role: Accessible.Button
        poses: ["normal", "disabled"]
        GalleryCell {
            id: busy
            ActionButton {
                width: Math.min(implicitWidth, busy.room)
                text: busy.word
                symbol: "trash"
                isBusy: true
            }
        }
    }
    GallerySection {
        control: "IconButton"
        role: Accessible.Button
        GalleryCell {
            id: icon
            IconButton {
                symbol: "xmark"
                label: icon.word
                tip: ""
            }
        }
    }
    GallerySection {
        control: "IconButton"
        variant: "off"
        role: Accessible.Button
        toldStates: ["checkable"]
        poses: ["normal", "hovered", "pressed", "focused", "disabled"]
        GalleryCell {
            id: iconOff
            IconButton {
                symbol: "eye.fill"
                label: iconOff.word
                tip: ""
                isToggle: true
            }
        }
    }
    GallerySection {
        control: "IconButton"
        variant: "on"
        role: Accessible.Button
        toldStates: ["checkable", "checked"]
        poses: ["normal", "hovered", "pressed", "focused", "disabled"]
        GalleryCell {
            id: iconOn
            IconButton {
                symbol: "eye.fill"
                label: iconOn.word
                tip: ""
                isToggle: true
                isOn: true
            }
        }
    }
    GallerySection {
        control: "FilterChip"
        role: Accessible.RadioButton
        toldStates: ["checkable"]
        poses: ["normal", "hovered", "pressed", "disabled", "long text", "right to left"]
        GalleryCell {
            id: chip
            usual: "Images"
            FilterChip {
                width: Math.min(implicitWidth, chip.room)
                label: chip.word
                countText: "128"
                isSelected: false
            }
        }
    }
    GallerySection {
        control: "FilterChip"
        variant: "selected"
        role: Accessible.RadioButton
        toldStates: ["checkable", "checked"]
        GalleryCell {
            id: selectedChip
            usual: "Images"
            FilterChip {
                width: Math.min(implicitWidth, selectedChip.room)
                label: selectedChip.word
                countText: "128"
                isSelected: true
            }
        }
    }
    GallerySection {
        control: "Picker"
        role: Accessible.ComboBox
        toldStates: ["expandable", "collapsed"]
        GalleryCell {
            id: choice
            usual: "100 KB"
            Picker {
                width: Math.min(implicitWidth, choice.room)
                label: choice.word
                shownText: choice.word
                chosenIndex: 0
                model: [choice.word, "1 MB"]
            }
        }
    }
    GallerySection {
        control: "MenuLine"
        role: Accessible.MenuItem
        GalleryCell {
            id: line
            room: 240
            MenuLine {
                width: line.room
                text: line.word
                keysText: "Ctrl+T"
                highlighted: line.pose === "hovered" || line.pose === "focused"
            }
        }
    }
    GallerySection {
        control: "ScrollHandle"
        poses: ["normal", "hovered", "pressed", "disabled"]
        GalleryCell {
            ScrollHandle {
                height: Theme.unit * 20
                orientation: Qt.Vertical
                size: 0.4
            }
        }
    }
}
