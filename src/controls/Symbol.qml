import QtQuick
import Quillmere

// One glyph of the symbol font, by its symbol's name.
Text {
    property string name
    property int size: 16

    text: Symbols.glyph(name)
    color: Theme.secondText
    font.family: Theme.symbolFamily
    font.pixelSize: size
    width: size
    height: size
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    textFormat: Text.PlainText
    Accessible.ignored: true
}
