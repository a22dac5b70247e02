import QtQuick
import Quillmere

// What one gone application has left behind.
TickedAppRow {
    id: row

    required property string bundleID
    required property string filesText
    required property string totalText
    required property string badgeText
    required property string badgeNote
    required property bool looksInstalled

    symbol: "ghost"
    underline: bundleID
    figure: totalText
    underFigure: filesText

    mark: Badge {
        objectName: "ghostBadge"
        text: row.badgeText
        tint: row.looksInstalled ? Theme.amber : Theme.secondText
        tip: row.badgeNote
    }
}
