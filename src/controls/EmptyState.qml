import QtQuick
import Quillmere

// What stands where there is nothing to show: a symbol, a line, and a second one where it helps.
Column {
    id: state

    required property string symbol
    required property string text
    property string detail
    property bool isScreen: false // it stands for a whole screen, whose title its text is

    spacing: isScreen ? Theme.unit * 3 : Theme.unit * 2
    Accessible.role: isScreen ? Accessible.Heading : Accessible.StaticText
    Accessible.name: text
    Accessible.description: detail

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: state.symbol
        size: state.isScreen ? 40 : 32
        color: Theme.disabledText
    }
    BodyText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: state.text
        color: state.isScreen ? Theme.text : Theme.secondText
        font.pixelSize: state.isScreen ? Theme.titleSize : Theme.bodySize
        font.weight: state.isScreen ? Font.DemiBold : Font.Normal
    }
    BodyText {
        width: parent.width
        visible: text.length > 0
        horizontalAlignment: Text.AlignHCenter
        text: state.detail
        color: Theme.secondText
        font.pixelSize: state.isScreen ? Theme.bodySize : Theme.smallSize
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        lineHeight: state.isScreen ? 1.3 : 1
    }
}
