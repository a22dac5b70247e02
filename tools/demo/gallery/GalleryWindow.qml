import QtQuick
import QtQuick.Controls.Basic
import Quillmere
import Quillmere.Gallery

// Every control in each of its states. The button at the top changes the palette.
ApplicationWindow {
    id: window

    required property bool isDark
    property bool isWhole: false // as high as all sections, for a picture of them all; a person scrolls
    readonly property int wholeHeight: Math.ceil(sections.height) + Theme.unit * 12

    title: "Quillmere"
    width: 1280
    height: isWhole ? wholeHeight : 800
    color: Theme.window
    visible: true

    Binding {
        target: Theme
        property: "isDark"
        value: window.isDark
    }

    Flickable {
        id: view
        anchors.fill: parent
        contentHeight: window.wholeHeight
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollHandle { }

        Column {
            id: sections
            x: Theme.unit * 6
            y: Theme.unit * 6
            width: view.width - Theme.unit * 12
            spacing: Theme.unit * 8

            ActionButton {
                text: window.isDark ? "Light" : "Dark"
                onClicked: window.isDark = !window.isDark
            }
            GalleryButtonSections { }
            GalleryFieldSections { }
            GalleryChoiceSections { }
            GalleryMarkSections { }
            GalleryPictureSections { }
            GalleryRowSections { }
            GalleryPanelSections { }
            GalleryPopupSections { }
        }
    }
}
