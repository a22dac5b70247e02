// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// A row of the list: a category, or a line or a file of its open preview, as a slice of the category's card. Most rows are
// files, so what the others show is made only where there is one.
CardRow {
    id: row

    required property string kind
    required property string title
    required property string detail
    required property string trailing
    required property string trailingDetail
    required property string symbol
    required property string badge
    required property bool isSafe
    required property string note
    required property bool isTicked
    required property bool isLocked
    required property bool isExpanded
    required property string previewTip
    required property bool isReviewable
    required property string moreText
    required property string allText
    required spoken
    required property SmartCleanupView view

    readonly property bool isCategory: kind === "category"
    readonly property bool isFile: kind === "file"
    readonly property bool isExpandable: isCategory
    readonly property bool hasTick: isCategory && !isLocked || isFile || isReviewable
    readonly property var toldChecked: hasTick && view.canChoose ? isTicked : undefined

    implicitHeight: 52
    isFirst: isCategory
    gap: isCategory ? Theme.unit * 2 : 0
    answersClicks: isCategory || isFile && view.canChoose
    text: title
    tip: hovered && isFile ? file.tip : ""
    onClicked: view.activate(index)
    Accessible.role: Accessible.ListItem

    contentItem: Item {
        Loader {
            y: row.gap
            width: parent.width
            height: parent.height - y
            active: row.isCategory
            sourceComponent: CleanupCategoryHead {
                title: row.title
                detail: row.detail
                trailing: row.trailing
                trailingDetail: row.trailingDetail
                symbol: row.symbol
                badge: row.badge
                isSafe: row.isSafe
                note: row.note
                isTicked: row.isTicked
                isLocked: row.isLocked
                isExpanded: row.isExpanded
                previewTip: row.previewTip
                view: row.view
                onTicked: row.view.toggleTick(row.index)
                onPreviewed: row.view.togglePreview(row.index)
                onRevealed: row.view.revealCategory(row.index)
            }
        }
        Loader {
            anchors.fill: parent
            active: !row.isCategory && !row.isFile
            sourceComponent: CleanupPreviewLine {
                title: row.title
                detail: row.detail
                trailing: row.trailing
                kind: row.kind
                isReviewable: row.isReviewable
                isReviewed: row.isTicked
                moreText: row.moreText
                allText: row.allText
                view: row.view
                onReviewed: row.view.toggleReviewed(row.index)
                onAllSelected: row.view.selectAllFiles(row.index)
                onNoneSelected: row.view.selectNoFiles(row.index)
                onMoreAsked: row.view.showMore(row.index)
                onAllAsked: row.view.showAllFiles(row.index)
            }
        }
        CleanupFileRow {
            id: file
            anchors.fill: parent
            visible: row.isFile
            title: visible ? row.title : ""
            detail: visible ? row.detail : ""
            trailing: visible ? row.trailing : ""
            isTicked: row.isTicked
            view: row.view
            onTicked: row.view.toggleFile(row.index)
        }
    }
}
