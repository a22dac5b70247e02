import QtQuick
import Quillmere

// What a row shows of one file of a group.
Item {
    id: file

    required property string title
    required property string detail
    required property string trailing
    required property bool isKept
    required property string badge
    required property string badgeSymbol
    required property string clickTip
    required property DuplicateFinderView view

    readonly property string tip: reveal.hovered ? "" : RowTexts.lines([
        name.truncated ? title : "", path.truncated ? detail : "", view.canChoose ? clickTip : ""])

    signal revealed

    Badge {
        id: pill
        width: 82
        x: Theme.unit * 3
        y: (parent.height - height) / 2
        text: file.badge
        symbol: file.badgeSymbol
        tint: file.isKept ? Theme.green : Theme.red
    }
    BodyText {
        id: name
        x: pill.x + pill.width + Theme.unit * 3
        y: Math.round(parent.height / 2) - height
        width: date.x - Theme.unit * 3 - x
        text: file.title
        color: file.view.canChoose ? Theme.text : Theme.secondText
        elide: Text.ElideMiddle
    }
    BodyText {
        id: path
        x: name.x
        y: name.y + name.height
        width: name.width
        text: file.detail
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
        elide: Text.ElideMiddle
    }
    BodyText {
        id: date
        x: reveal.x - Theme.unit * 2 - width
        height: parent.height
        text: file.trailing
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
    }
    IconButton {
        id: reveal
        objectName: "revealFile"
        x: parent.width - width - Theme.unit * 3
        y: (parent.height - height) / 2
        enabled: file.view.canChoose
        symbol: "folder"
        symbolSize: 14
        label: file.view.texts.reveal
        tip: file.view.texts.reveal
        focusPolicy: Qt.NoFocus
        onClicked: file.revealed()
    }
}
