import QtQuick
import Quillmere
import Quillmere.Gallery

// What is chosen, ticked or followed.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "LinkButton"
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
        control: "TickBox"
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
        poses: ["normal", "hovered", "disabled", "right to left"]
        GalleryCell {
            id: segments
            usual: "Lines"
            Segments {
                label: segments.word
                labels: [segments.word.slice(0, 12), "Columns", "Gallery"]
                currentIndex: 1
            }
        }
    }
    GallerySection {
        control: "TabStrip"
        role: Accessible.PageTabList
        poses: ["normal", "hovered", "disabled", "right to left"]
        GalleryCell {
            id: tabs
            usual: "Rules"
            TabStrip {
                label: tabs.word
                labels: [tabs.word.slice(0, 12), "Preview", "History"]
                currentIndex: 0
            }
        }
    }
    GallerySection {
        control: "Breadcrumbs"
        role: Accessible.Grouping
        poses: ["normal", "disabled", "long text", "right to left"]
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
    GallerySection {
        control: "ProgressRing"
        role: Accessible.ProgressBar
        poses: ["normal", "disabled"]
        GalleryCell {
            id: ring
            ProgressRing {
                label: ring.word
                value: 0.4
            }
        }
    }
    GallerySection {
        control: "StackedBar"
        role: Accessible.Grouping
        poses: ["normal", "hovered", "disabled"]
        GalleryCell {
            id: stack
            StackedBar {
                width: 300
                height: Theme.unit * 4
                label: stack.word
                parts: [{ share: 0.4, fill: Theme.accent, label: "Documents", tip: "", isLink: true },
                        { share: 0.001, fill: Theme.amber, label: "Caches", tip: "" },
                        { share: 0.2, fill: Theme.green, label: "Movies", tip: "" }]
            }
        }
    }
    GallerySection {
        control: "ResultLine"
        role: Accessible.AlertMessage
        poses: GalleryPoses.still
        GalleryCell {
            id: result
            ResultLine {
                text: result.word
                detail: result.word
                dismissLabel: "Dismiss"
                ActionButton {
                    text: "Undo"
                }
            }
        }
    }
}
