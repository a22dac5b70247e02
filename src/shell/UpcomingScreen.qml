import QtQuick
import Quillmere

// Stands where a screen will be.
Item {
    id: screen

    required property UpcomingView view

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - Theme.unit * 16, 440)
        spacing: Theme.unit * 3

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: screen.view.symbol
            size: 40
            color: Theme.disabledText
        }
        BodyText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: screen.view.title
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        BodyText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: screen.view.description
            color: Theme.secondText
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            lineHeight: 1.3
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
