import QtQuick
import Quillmere
import Quillmere.Gallery

// Pictures from the disk: one that is there, and what stands in the place of one that is not.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "Picture"
        poses: ["normal", "disabled"]
        GalleryCell {
            Picture {
                key: GalleryPoses.picture
                symbol: "app.fill"
                size: 48
            }
        }
    }
    GallerySection {
        control: "Picture"
        variant: "that is not there"
        poses: ["normal", "disabled"]
        GalleryCell {
            Picture {
                key: "/nowhere"
                symbol: "app.fill"
                size: 48
            }
        }
    }
}
