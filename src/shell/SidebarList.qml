import QtQuick
import Quillmere

// The rows of the screens under the heads of their sections. It is one stop of the Tab key, which comes to the row of the
// screen on view; from there the arrows lead, and the row that has the keyboard opens by Return or Space. A click opens
// as well, and like any other way to a screen leaves the keyboard there and not here.
ListView {
    id: list

    required property SidebarView sidebar

    function walk(key, modifiers) {
        const row = RowSteps.target(key, modifiers, currentIndex, count, height / Theme.rowHeight);
        if (row >= 0)
            currentIndex = row;
        return row >= 0;
    }

    function goBackToSelected() {
        currentIndex = sidebar.selectedRow;
    }

    model: sidebar.items
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    keyNavigationEnabled: false // its own keys know neither pages nor the ends
    highlightMoveDuration: 0
    Accessible.role: Accessible.List
    Accessible.name: sidebar.listName
    onActiveFocusChanged: goBackToSelected()
    Keys.onPressed: event => event.accepted = walk(event.key, event.modifiers)

    section.property: "sectionTitle"
    section.delegate: CaptionText {
        required property string section
        width: ListView.view.width
        height: 34
        leftPadding: Theme.unit * 2
        bottomPadding: Theme.unit
        verticalAlignment: Text.AlignBottom
        text: section
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    delegate: SidebarButton {
        width: ListView.view.width
        isCurrent: ListView.isCurrentItem && ListView.view.activeFocus
        onClicked: (ListView.view as SidebarList).sidebar.select(index)
    }
    Connections {
        target: list.sidebar
        function onSelectedRowChanged() {
            list.goBackToSelected();
        }
    }
}
