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
        poses: GalleryPoses.still
        GalleryCell {
            id: warning
            usual: "SAME FILE"
            Badge {
                width: Math.min(implicitWidth, warning.room)
                text: warning.word
                tint: Theme.amber
            }
        }
    }
    GallerySection {
        control: "AgePill"
        role: Accessible.StaticText
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
        poses: GalleryPoses.still
        GalleryCell {
            id: figure
            usual: "12.4 GB"
            Figure {
                width: figure.room
                label: "RECLAIMABLE"
                value: figure.word
            }
        }
    }
}
