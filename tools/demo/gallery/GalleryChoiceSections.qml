import QtQuick
import Quillmere
import Quillmere.Gallery

// What is chosen, ticked or followed.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "LinkButton"
        role: Accessible.Link
        GalleryCell {
            id: link
            LinkButton {
                width: Math.min(implicitWidth, link.room)
                text: link.word
            }
        }
    }
    GallerySection {
        control: "Disclosure"
        role: Accessible.Button
        toldStates: ["expandable", "collapsed"]
        GalleryCell {
            id: disclosure
            Disclosure {
                width: Math.min(implicitWidth, disclosure.room)
                text: disclosure.word
                isExpanded: false
            }
        }
    }
    GallerySection {
        control: "Disclosure"
        variant: "expanded"
        role: Accessible.Button
        toldStates: ["expandable", "expanded"]
        GalleryCell {
            id: open
            Disclosure {
                width: Math.min(implicitWidth, open.room)
                text: open.word
                isExpanded: true
            }
        }
    }
    GallerySection {
        control: "TickBox"
        role: Accessible.CheckBox
        toldStates: ["checkable"]
        GalleryCell {
            id: box
            TickBox {
                width: Math.min(implicitWidth, box.room)
                text: box.word
                isTicked: false
            }
        }
    }
    GallerySection {
        control: "TickBox"
        variant: "ticked"
        role: Accessible.CheckBox
        toldStates: ["checkable", "checked"]
        GalleryCell {
            id: tickedBox
            TickBox {
                width: Math.min(implicitWidth, tickedBox.room)
                text: tickedBox.word
                isTicked: true
            }
        }
    }
    GallerySection {
        control: "ToggleSwitch"
        role: Accessible.CheckBox
        toldStates: ["checkable"]
        GalleryCell {
            id: toggle
            ToggleSwitch {
                width: Math.min(implicitWidth, toggle.room)
                text: toggle.word
                isOn: false
            }
        }
    }
    GallerySection {
        control: "ToggleSwitch"
        variant: "on"
        role: Accessible.CheckBox
        toldStates: ["checkable", "checked"]
        GalleryCell {
            id: toggleOn
            ToggleSwitch {
                width: Math.min(implicitWidth, toggleOn.room)
                text: toggleOn.word
                isOn: true
            }
        }
    }
    GallerySection {
        control: "Segments"
        role: Accessible.Grouping
        GalleryCell {
            id: segments
            usual: "Lines"
            Segments {
                label: segments.word
                labels: [segments.word, "Columns", "Gallery"]
                currentIndex: 1
            }
        }
    }
    GallerySection {
        control: "Segments"
        variant: "of symbols"
        role: Accessible.Grouping
        poses: ["normal", "hovered", "pressed", "focused", "disabled"]
        GalleryCell {
            id: signs
            usual: "View"
            Segments {
                label: signs.word
                labels: ["List", "Grid", "Folders"]
                symbols: ["list.bullet", "square.grid.2x2", "folder"]
                areTextsShown: false
                currentIndex: 1
            }
        }
    }
    GallerySection {
        control: "TabStrip"
        role: Accessible.PageTabList
        GalleryCell {
            id: tabs
            usual: "Rules"
            TabStrip {
                label: tabs.word
                labels: [tabs.word, "Preview", "History"]
                currentIndex: 0
            }
        }
    }
    GallerySection {
        control: "Breadcrumbs"
        role: Accessible.Grouping
        GalleryCell {
            id: way
            usual: "Documents"
            Breadcrumbs {
                width: 300
                height: Theme.controlHeight
                label: way.word
                model: ["Home", way.word, "Invoices"]
            }
        }
    }
}
