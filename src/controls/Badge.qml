import QtQuick
import Quillmere

// A pill with a word that tells of what it stands on, and a symbol where one is told. Nothing where there is no word. Its
// ground is opaque, so that the word reads as well on a row that is lit.
Pill {
    id: badge

    required property string text
    required property color tint
    property string symbol
    property string tip
    property bool isQuiet: false // a count that asks for nothing
    property list<string> labels // all that it may read in its place, where that changes: it keeps the room of the widest

    readonly property int rest: (icon.visible ? icon.width + content.spacing : 0) + Theme.unit * 3 // beside the word
    readonly property int heldWidth: labels.length > 0 ? TextRuler.widest(labels, label.font) : 0

    visible: text.length > 0
    implicitWidth: Math.ceil(Math.max(label.implicitWidth, heldWidth)) + rest
    implicitHeight: icon.visible ? 22 : 18
    color: isQuiet ? Theme.free : Qt.tint(Theme.card, Qt.alpha(tint, 0.06))
    borderColor: isQuiet ? Theme.free : Qt.tint(Theme.card, Qt.alpha(tint, 0.5))
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: tip

    Row {
        id: content
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: label.font.letterSpacing / 2 // there is one behind the last letter as well
        anchors.alignWhenCentered: false
        spacing: Theme.unit
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            visible: badge.symbol.length > 0
            name: badge.symbol
            size: 11
            color: badge.tint
        }
        CaptionText {
            id: label
            anchors.baseline: parent.verticalCenter
            anchors.baselineOffset: TextRuler.baselineOffset(font)
            width: Math.min(implicitWidth, badge.width - badge.rest)
            text: badge.text
            color: badge.tint
            font.pixelSize: badge.isQuiet ? Theme.captionSize : 10
            font.weight: badge.isQuiet ? Font.Normal : Font.DemiBold
            font.letterSpacing: badge.isQuiet ? 0 : 0.6
        }
    }
    HoverHandler {
        id: pointer
        enabled: badge.tip.length > 0
    }
    Tip {
        control: badge
        isDue: pointer.hovered
        text: badge.tip
    }
}
