import QtQuick
import Quillmere

// A row of the list: the head of a group or one of its files, as a slice of the group's card.
Item {
    id: row

    required property int index
    required property bool isHead
    required property string title
    required property string detail
    required property string trailing
    required property bool isKept
    required property string badge
    required property string badgeSymbol
    required property string tip
    required property string sameMark
    required property string sameTip
    required property string lossMark
    required property string lossTip
    required property bool isLast
    required property string spoken
    required property DuplicateFinderView view
    property bool isCurrent: false

    signal taken
    signal menuRequested

    implicitHeight: 48

    // The card reaches beyond the slice where it goes on above or below, so that only its true ends are round.
    Item {
        anchors.fill: parent
        clip: true
        Card {
            x: 0
            y: row.isHead ? Theme.unit * 2 : -radius
            width: parent.width
            height: parent.height - y + (row.isLast ? -1 : radius)
        }
    }
    DuplicateGroupHead {
        anchors.fill: parent
        anchors.topMargin: Theme.unit * 2
        visible: row.isHead
        title: row.title
        detail: row.detail
        trailing: row.trailing
        sameMark: row.sameMark
        sameTip: row.sameTip
        lossMark: row.lossMark
        lossTip: row.lossTip
        spoken: row.spoken
        isCurrent: row.isCurrent
        view: row.view
        onNewest: row.view.keepNewestOf(row.index)
        onOldest: row.view.keepOldestOf(row.index)
        onMenuRequested: {
            row.taken();
            row.menuRequested();
        }
    }
    DuplicateFileRow {
        anchors.fill: parent
        anchors.leftMargin: Theme.unit * 2
        anchors.rightMargin: Theme.unit * 2
        anchors.bottomMargin: row.isLast ? Theme.unit : 0
        visible: !row.isHead
        enabled: row.view.canChoose
        text: row.title
        detail: row.detail
        trailing: row.trailing
        isKept: row.isKept
        badge: row.badge
        badgeSymbol: row.badgeSymbol
        tip: row.tip
        spoken: row.spoken
        isCurrent: row.isCurrent
        revealTip: row.view.texts.reveal
        onPressed: row.taken()
        onClicked: row.view.toggleKeep(row.index)
        onRevealed: row.view.reveal(row.index)
        onMenuRequested: {
            row.taken();
            row.menuRequested();
        }
    }
}
