// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import QtQuick.Templates as T
import Quillmere

// The title of a menu in the menu bar, and the menu below it. It is lit while its menu is open or the pointer is over it.
T.Button {
    id: title

    required property MenuBarView commands
    required property string letter // the first, which opens the menu with Alt
    required property string sequence
    required property var items
    required property bool isBarInUse // one of the menus is open
    readonly property bool isShown: menu.visible
    readonly property bool isExpanded: isShown // for assistive technology

    signal asked(bool isByKey)
    signal stepped(int step)

    function showMenu(isByKey) {
        menu.open();
        if (isByKey)
            menu.lightFirst();
    }
    function hideMenu() {
        menu.close();
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: Theme.unit * 3
    rightPadding: Theme.unit * 3
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    readonly property int toldRole: Accessible.MenuItem // the toolkit overwrites the one below
    Accessible.role: toldRole
    onClicked: isShown ? hideMenu() : asked(false)
    onHoveredChanged: if (hovered && isBarInUse && !isShown) asked(false)

    contentItem: BodyText {
        id: words
        text: title.text
        verticalAlignment: Text.AlignVCenter

        Loader {
            y: words.baselineOffset + 1
            active: InputWatch.isAltDown
            sourceComponent: Divider {
                objectName: "letterLine"
                width: metrics.advanceWidth
                color: Theme.text
                TextMetrics {
                    id: metrics
                    font: words.font
                    text: title.letter
                }
            }
        }
    }
    background: Item {
        Pill {
            anchors.fill: parent
            anchors.margins: 3
            radius: Theme.tileRadius
            color: title.isShown ? Theme.pressed : title.hovered ? Theme.hover : "transparent"
        }
    }
    Shortcut {
        sequence: title.sequence
        onActivated: title.asked(true)
    }
    CommandMenu {
        id: menu
        title: words.text
        y: title.height
        commands: title.commands
        items: title.items
        onStepped: step => title.stepped(step)
    }
}
