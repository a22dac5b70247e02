import QtQuick
import Quillmere

// Where the entry on view lies: back, home, the way in, and the file viewer.
Item {
    id: path

    required property DiskAnalyzerView view

    // Nothing is left to go back to, and whoever came here by key would stand on a command that is off.
    signal topReached

    implicitHeight: Theme.controlHeight
    enabled: view.hasEntry

    function leave(isByKey, command) {
        command();
        if (isByKey && !view.canGoBack)
            topReached();
    }

    IconButton {
        id: back
        objectName: "backButton"
        symbol: "chevron.left"
        label: path.view.texts.goBack
        tip: path.view.texts.goBack
        enabled: path.view.canGoBack
        onClicked: path.leave(visualFocus, () => path.view.goBack())
    }
    ActionButton {
        id: home
        objectName: "homeButton"
        anchors.left: back.right
        anchors.leftMargin: Theme.unit
        symbol: "house.fill"
        text: path.view.texts.home
        enabled: path.view.canGoBack
        onClicked: path.leave(visualFocus, () => path.view.goHome())
    }
    Breadcrumbs {
        objectName: "breadcrumbList"
        anchors.left: home.right
        anchors.leftMargin: Theme.unit
        anchors.right: finder.left
        anchors.rightMargin: Theme.unit * 2
        label: path.view.texts.wayHere
        model: path.view.breadcrumbs
        textRole: "entryName"
        onChosen: index => path.view.goTo(index)
    }
    ActionButton {
        id: finder
        objectName: "finderButton"
        anchors.right: parent.right
        symbol: "folder"
        text: path.view.texts.openInFinder
        tip: path.view.location
        onClicked: path.view.openInFinder()
    }
}
