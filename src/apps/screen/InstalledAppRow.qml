import QtQuick
import Quillmere

// An installed application.
TickedAppRow {
    id: row

    required picture
    required property string versionText
    required property string bundleID
    required property string sizeText
    required property string lastUsedText

    symbol: "app.fill"
    underline: bundleID
    figure: sizeText
    underFigure: lastUsedText

    mark: BodyText {
        width: Math.min(Math.ceil(implicitWidth), 96)
        text: row.versionText
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
    }
}
