import QtQuick
import Quillmere
import Quillmere.Gallery

// Texts, symbols, bars and pills: what only tells.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "BodyText"
        poses: GalleryPoses.still
        GalleryCell {
            id: body
            BodyText {
                width: Math.min(implicitWidth, body.room)
                text: body.word
            }
        }
    }
    GallerySection {
        control: "ElidedText"
        poses: GalleryPoses.still
        GalleryCell {
            id: elided
            ElidedText {
                width: Math.min(implicitWidth, elided.room)
                text: elided.word
            }
        }
    }
    GallerySection {
        control: "CaptionText"
        poses: GalleryPoses.still
        GalleryCell {
            id: caption
            CaptionText {
                width: Math.min(implicitWidth, caption.room)
                text: caption.word
            }
        }
    }
    GallerySection {
        control: "Symbol"
        poses: ["normal", "disabled"]
        GalleryCell {
            Symbol {
                name: "folder"
            }
        }
    }
    GallerySection {
        control: "Spinner"
        poses: ["normal", "disabled"]
        GalleryCell {
            Spinner { }
        }
    }
    GallerySection {
        control: "ShareBar"
        poses: ["none", "a sliver", "a third", "all"]
        GalleryCell {
            id: bar
            ShareBar {
                width: bar.room
                share: bar.pose === "none" ? 0 : bar.pose === "a sliver" ? 0.001 : bar.pose === "all" ? 1 : 0.33
            }
        }
    }
    GallerySection {
        control: "Badge"
        role: Accessible.StaticText
        toldStates: ["readOnly"]
        poses: GalleryPoses.still
        GalleryCell {
            id: badge
            usual: "KEEP"
            Badge {
                width: Math.min(implicitWidth, badge.room)
                text: badge.word
                symbol: "checkmark"
                tint: Theme.green
            }
        }
    }
    GallerySection {
        control: "Badge"
        variant: "without a symbol"
        role: Accessible.StaticText
        toldStates: ["readOnly"]
        poses: GalleryPoses.still
        GalleryCell {
            id: plainBadge
            usual: "DELETE"
            Badge {
                width: Math.min(implicitWidth, plainBadge.room)
                text: plainBadge.word
                tint: Theme.red
            }
        }
    }
    GallerySection {
        control: "Badge"
        variant: "of a warning"
        role: Accessible.StaticText
        toldStates: ["readOnly"]
        poses: GalleryPoses.still
        GalleryCell {
            id: warningBadge
            usual: "SAME FILE"
            Badge {
                width: Math.min(implicitWidth, warningBadge.room)
                text: warningBadge.word
                tint: Theme.amber
            }
        }
    }
    GallerySection {
        control: "AgePill"
        role: Accessible.StaticText
        toldStates: ["readOnly"]
        poses: GalleryPoses.still
        GalleryCell {
            id: age
            usual: "5 min ago"
            AgePill {
                width: Math.min(implicitWidth, age.room)
                text: age.word
            }
        }
    }
    GallerySection {
        control: "Figure"
        role: Accessible.StaticText
        toldStates: ["readOnly"]
        poses: GalleryPoses.still
        GalleryCell {
            id: figure
            usual: "12.4 GB"
            spoken: "RECLAIMABLE: " + word
            Figure {
                width: figure.room
                label: "RECLAIMABLE"
                value: figure.word
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
        control: "ProgressRing"
        variant: "turning"
        role: Accessible.ProgressBar
        poses: ["normal", "disabled"]
        GalleryCell {
            id: turningRing
            ProgressRing {
                label: turningRing.word
                isTurning: true
            }
        }
    }
    GallerySection {
        control: "StackedBar"
        role: Accessible.Grouping
        poses: ["normal", "hovered", "pressed", "focused", "disabled", "right to left", "full"]
        GalleryCell {
            id: stack
            StackedBar {
                width: 300
                height: Theme.unit * 4
                label: stack.word
                parts: [{ share: 0.4, fill: Theme.accent, label: "Documents", tip: "", isLink: true },
                        { share: 0.001, fill: Theme.amber, label: "Caches", tip: "" },
                        { share: stack.pose === "full" ? 0.6 : 0.2, fill: Theme.green, label: "Movies", tip: "" }]
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
    GallerySection {
        control: "ResultLine"
        variant: "of a warning"
        role: Accessible.AlertMessage
        poses: ["normal", "disabled"]
        GalleryCell {
            id: warning
            ResultLine {
                text: warning.word
                tone: ResultLine.Warning
                detail: warning.word
                dismissLabel: "Dismiss"
                ActionButton {
                    text: "Undo"
                }
            }
        }
    }
    GallerySection {
        control: "ResultLine"
        variant: "of a failure"
        role: Accessible.AlertMessage
        poses: ["normal", "disabled"]
        GalleryCell {
            id: failure
            ResultLine {
                text: failure.word
                tone: ResultLine.Failure
                detail: failure.word
                dismissLabel: "Dismiss"
                ActionButton {
                    text: "Undo"
                }
            }
        }
    }
}
