import QtQuick
import Quillmere
import Quillmere.Gallery

// What is written into.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "InputField"
        role: Accessible.EditableText
        toldStates: ["editable"]
        GalleryCell {
            id: field
            spoken: "Name"
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
        role: Accessible.EditableText
        toldStates: ["editable"]
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
        role: Accessible.EditableText
        toldStates: ["editable"]
        poses: ["normal", "focused", "disabled"]
        GalleryCell {
            id: wrongField
            spoken: "Name"
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
        role: Accessible.EditableText
        toldStates: ["editable", "searchEdit"]
        GalleryCell {
            id: search
            spoken: "Search"
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
        role: Accessible.EditableText
        toldStates: ["editable"]
        poses: ["normal", "hovered", "focused", "disabled", "right to left"]
        GalleryCell {
            spoken: "Days"
            NumberField {
                label: "Days"
                value: 30
            }
        }
    }
}
