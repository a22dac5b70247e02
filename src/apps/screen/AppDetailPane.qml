pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere

// One application: what it is, what it takes, where it lies, and the command that ends it.
FocusScope {
    id: pane

    required property AppManagerView view
    readonly property AppDetail detail: view.appDetail

    Flickable {
        id: content
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: foot.top
        anchors.margins: 1 // the scroll handle stands inside of the card's outline
        contentHeight: column.height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: ScrollHandle { }

        Column {
            id: column
            x: Theme.unit * 4 - 1
            width: parent.width - Theme.unit * 8 + 2
            topPadding: Theme.unit * 4
            bottomPadding: Theme.unit * 2
            spacing: Theme.unit

            Item {
                width: parent.width
                height: 52
                Picture {
                    id: picture
                    size: 48
                    anchors.verticalCenter: parent.verticalCenter
                    key: pane.detail.icon
                    symbol: "app.fill"
                }
                ElidedText {
                    id: name
                    objectName: "detailName"
                    anchors.left: picture.right
                    anchors.leftMargin: Theme.unit * 3
                    anchors.right: parent.right
                    y: 6
                    text: pane.detail.name
                    font.pixelSize: 16
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                ElidedText {
                    anchors.left: name.left
                    anchors.right: version.left
                    anchors.rightMargin: Theme.unit * 2
                    anchors.top: name.bottom
                    anchors.topMargin: 2
                    text: pane.detail.bundleID
                    color: Theme.secondText
                    font.pixelSize: Theme.smallSize
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                BodyText {
                    id: version
                    anchors.right: parent.right
                    anchors.top: name.bottom
                    anchors.topMargin: 2
                    width: Math.min(Math.ceil(implicitWidth), 88)
                    text: pane.detail.versionText
                    color: Theme.secondText
                    font.pixelSize: Theme.smallSize
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
            BodyText {
                width: parent.width
                topPadding: Theme.unit
                text: pane.detail.totalText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            BodyText {
                width: parent.width
                text: pane.detail.lastUsedText
                color: Theme.secondText
                font.pixelSize: Theme.smallSize
                bottomPadding: Theme.unit * 2
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            AppSectionHead {
                width: parent.width
                text: pane.view.texts.sizeBreakdown
            }
            Repeater {
                model: pane.detail.breakdown
                AppAmountRow {
                    width: column.width
                    required isTotal
                }
            }
            Item {
                width: 1
                height: Theme.unit
            }
            AppSectionHead {
                width: parent.width
                text: pane.view.texts.location
                LinkButton {
                    objectName: "showInFinder"
                    text: pane.view.texts.showInFinder
                    onClicked: pane.view.revealSelected()
                }
            }
            ElidedText {
                width: parent.width
                text: pane.detail.path
                color: Theme.secondText
                font.pixelSize: Theme.smallSize
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
    AppPaneFoot {
        id: foot
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        action.objectName: "uninstallButton"
        action.enabled: pane.view.canUninstall
        action.text: pane.detail.uninstallText
        action.tip: pane.view.texts.uninstallTip
        onActed: pane.view.askToUninstall()
    }
}
