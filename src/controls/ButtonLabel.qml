// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// A symbol and a word in the middle of what they stand on. The word is cut where it has no room.
Item {
    id: content

    property string symbol
    property int symbolSize: 14
    property bool isBusy: false // a ring turns in place of the symbol
    property alias text: word.text
    property alias font: word.font
    property color color: Theme.text

    readonly property bool isCut: word.truncated
    readonly property bool hasLead: symbol.length > 0 || isBusy
    readonly property int lead: !hasLead ? 0 : text.length > 0 ? symbolSize + Theme.unit * 1.5 : symbolSize
    readonly property int wordWidth: Math.ceil(word.implicitWidth)

    implicitWidth: lead + wordWidth
    implicitHeight: Math.max(symbolSize, word.implicitHeight)

    Item {
        anchors.centerIn: parent
        width: Math.min(parent.width, content.implicitWidth)
        height: parent.height

        Symbol {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            visible: !content.isBusy && content.hasLead
            name: content.symbol
            size: content.symbolSize
            color: content.color
        }
        Loader {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: content.symbolSize
            height: content.symbolSize
            active: content.isBusy
            sourceComponent: ProgressRing {
                isTurning: true
                color: content.color
            }
        }
        BodyText {
            id: word
            anchors.left: parent.left
            anchors.leftMargin: content.lead
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            color: content.color
        }
    }
}
