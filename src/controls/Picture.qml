import QtQuick
import QtQuick.Window
import Quillmere

// A picture from the disk by its key. A symbol stands in its place while it is on its way, and where there is none.
Item {
    id: picture

    required property string key // empty for none
    required property string symbol
    property int size: 32

    // What can't be read comes as a single pixel.
    readonly property bool isThere: image.status === Image.Ready && image.implicitWidth * Screen.devicePixelRatio > 1.5

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Symbol {
        objectName: "pictureSymbol"
        anchors.centerIn: parent
        visible: !picture.isThere
        name: picture.symbol
        size: Math.round(picture.size * 0.75)
        color: Theme.disabledText
    }
    Image {
        id: image
        anchors.fill: parent
        visible: picture.isThere
        source: Pictures.address(picture.key)
        sourceSize.width: picture.size
        sourceSize.height: picture.size
        fillMode: Image.PreserveAspectFit
        asynchronous: true
    }
}
