import QtQuick
import QtQuick.Templates as T
import Quillmere

// One of the two lists of the scope, under its title and over the button that adds to it.
Column {
    id: column

    required property string title
    required property string emptyText
    required property string addText
    required property string addSymbol
    required property int listHeight
    required property string listName
    required property var rows // QAbstractItemModel
    required property Component delegate

    readonly property int gutter: Theme.unit * 3 // the scroll handle stands beside the rows, not over them

    signal added

    spacing: Theme.unit * 2

    Item {
        width: parent.width
        height: Theme.controlHeight
        CaptionText {
            anchors.verticalCenter: parent.verticalCenter
            text: column.title
            font.capitalization: Font.AllUppercase
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        ActionButton {
            anchors.right: parent.right
            text: column.addText
            symbol: column.addSymbol
            onClicked: column.added()
        }
    }
    ListView {
        id: list
        objectName: column.listName
        width: parent.width + column.gutter
        height: column.listHeight
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: column.rows
        delegate: column.delegate
        Accessible.role: Accessible.List
        Accessible.name: column.title
        T.ScrollBar.vertical: ScrollHandle { }

        BodyText {
            anchors.centerIn: parent
            width: column.width
            visible: text.length > 0
            horizontalAlignment: Text.AlignHCenter
            text: column.emptyText
            color: Theme.secondText
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
    }
}
