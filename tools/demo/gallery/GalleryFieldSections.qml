import QtQuick
import Quillmere
import Quillmere.Gallery

// What is written into.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "InputField"
        GalleryCell {
            id: field
            InputField {
                text: field.word
                label: "Name"
                symbol: "pencil"
            }
        }
    }
    GallerySection {
        control: "InputField"
        variant: "empty"
        poses: ["normal", "hovered", "focused", "disabled", "long text", "right to left"]
        GalleryCell {
            id: emptyField
            InputField {
                placeholder: emptyField.word
            }
        }
    }
    GallerySection {
        control: "InputField"
        variant: "with a wrong text"
        poses: ["normal", "focused", "disabled"]
        GalleryCell {
            id: wrongField
            InputField {
                text: wrongField.word
                label: "Name"
                isWrong: true
                wrongText: "There is one of that name."
            }
        }
    }
    GallerySection {
        control: "SearchField"
        GalleryCell {
            id: search
            SearchField {
                text: search.word
                placeholder: "Search"
                countText: "128"
                clearLabel: "Clear"
            }
        }
    }
    GallerySection {
        control: "NumberField"
        poses: ["normal", "hovered", "focused", "disabled"]
        GalleryCell {
            NumberField {
                label: "Days"
                value: 30
            }
        }
    }
}
