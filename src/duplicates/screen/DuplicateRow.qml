import QtQuick
import Quillmere

// A row of the list: the head of a group or one of its files, as a slice of the group's card. A row is made once and used
// for either, so what it is not shows nothing and is given no texts to lay out.
CardRow {
    id: row

    required property bool isHead
    required property string title
    required property string detail
    required property string trailing
    required property bool isKept
    required property string badge
    required property string badgeSymbol
    required property string clickTip
    required property string sameMark
    required property string sameTip
    required property string lossMark
    required property string lossTip
    required spoken
    required property DuplicateFinderView view

    implicitHeight: 54
    isFirst: isHead
    gap: isHead ? Theme.unit * 1.5 : 0
    answersClicks: checkable
    text: title
    checkable: !isHead && view.canChoose
    checked: !isHead && isKept
    tip: !hovered ? "" : isHead ? head.tip : file.tip
    onClicked: view.toggleKeep(index)

    contentItem: Item {
        DuplicateGroupHead {
            id: head
            y: row.gap
            width: parent.width
            height: parent.height - y
            visible: row.isHead
            title: visible ? row.title : ""
            detail: visible ? row.detail : ""
            trailing: visible ? row.trailing : ""
            sameMark: row.sameMark
            sameTip: row.sameTip
            lossMark: row.lossMark
            lossTip: row.lossTip
            view: row.view
            onNewest: row.view.keepNewestOf(row.index)
            onOldest: row.view.keepOldestOf(row.index)
        }
        DuplicateFileRow {
            id: file
            width: parent.width
            height: parent.height
            visible: !row.isHead
            title: visible ? row.title : ""
            detail: visible ? row.detail : ""
            trailing: visible ? row.trailing : ""
            isKept: row.isKept
            badge: row.badge
            badgeSymbol: row.badgeSymbol
            clickTip: row.clickTip
            view: row.view
            onRevealed: row.view.reveal(row.index)
        }
    }
}
