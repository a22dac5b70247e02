import QtQuick
import Quillmere

// The tabs, and at their right what narrows, orders and ticks the list of the one on view.
Item {
    id: bar

    required property AppManagerView view

    implicitHeight: tabs.implicitHeight + Theme.unit

    TabStrip {
        id: tabs
        objectName: "appTabs"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        label: bar.view.title
        labels: bar.view.tabLabels
        symbols: ["app.fill", "ghost"]
        currentIndex: bar.view.activeTab
        onChosen: index => bar.view.chooseTab(index)
    }
    // Its left end stays where it is when another tab has other commands.
    SearchField {
        id: search
        objectName: "appSearch"
        anchors.right: bar.view.isGhostTab ? ticking.left : sorting.left
        anchors.rightMargin: Theme.unit * 2
        width: 200 + Math.max(sorting.width, ticking.width) - (bar.view.isGhostTab ? ticking.width : sorting.width)
        placeholder: bar.view.texts.searchField
        clearLabel: bar.view.texts.clearSearch
        onEdited: bar.view.lists.searchText = text
    }
    Row {
        id: sorting
        anchors.right: parent.right
        visible: !bar.view.isGhostTab
        spacing: Theme.unit * 2

        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            leftPadding: Theme.unit
            text: bar.view.texts.sortBy
            color: Theme.secondText
        }
        Picker {
            objectName: "sortPicker"
            label: bar.view.texts.sortBy
            model: bar.view.lists.sortLabels
            chosenIndex: bar.view.lists.sortBy
            shownText: bar.view.lists.sortLabels[bar.view.lists.sortBy]
            onChosen: index => bar.view.lists.chooseSort(index)
        }
    }
    Row {
        id: ticking
        anchors.right: parent.right
        visible: bar.view.isGhostTab
        spacing: Theme.unit * 2

        ActionButton {
            objectName: "selectAllGhosts"
            enabled: bar.view.canChoose && bar.view.hasGhosts
            text: bar.view.texts.selectAll
            symbol: "checkmark.circle.fill"
            onClicked: bar.view.selectAllGhosts(true)
        }
        ActionButton {
            objectName: "selectNoGhosts"
            enabled: bar.view.canChoose && bar.view.hasGhosts
            text: bar.view.texts.selectNone
            symbol: "circle"
            onClicked: bar.view.selectAllGhosts(false)
        }
    }
    // Another tab empties the search.
    Connections {
        target: bar.view.lists
        function onChanged() {
            if (search.text !== bar.view.lists.searchText)
                search.text = bar.view.lists.searchText;
        }
    }
}
