import QtQuick
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

    signal added
    signal opened(int row) // by key; a click is the row's own

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
            id: add
            anchors.right: parent.right
            text: column.addText
            symbol: column.addSymbol
            onClicked: column.added()
        }
    }
    RowList {
        id: list
        objectName: column.listName
        width: parent.width + gutter
        height: column.listHeight
        focus: false // it is not what the screen is for
        activeFocusOnTab: count > 0
        model: column.rows
        delegate: column.delegate
        onRowOpened: row => column.opened(row)
        onRowToggled: row => column.opened(row)
        onRanOut: add.forceActiveFocus(Qt.TabFocusReason)
        Accessible.name: column.title

        BodyText {
            parent: list
            anchors.centerIn: parent
            width: column.width
            visible: text.length > 0
            horizontalAlignment: Text.AlignHCenter
            text: column.emptyText
            color: Theme.secondText
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
