// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import QtQuick.Controls.Basic
import Quillmere

// The one window: menu bar, sidebar, title bar and the selected screen.
ApplicationWindow {
    id: window

    required property ContentView content
    required property SidebarView sidebar
    required property MainContentView main
    required property SheetsView sheets
    required property MenuBarView commands
    required property Appearance appearance
    required property QuitPaths quit

    title: "Quillmere"
    width: 1280
    height: 800
    minimumWidth: 1100
    minimumHeight: 700
    color: Theme.window
    visible: true
    onClosing: quit.requestQuit()

    Binding {
        target: Theme
        property: "isDark"
        value: window.appearance.isDark
    }

    menuBar: MainMenuBar {
        commands: window.commands
    }

    Sidebar {
        id: sidebar
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        sidebar: window.sidebar
        commands: window.commands
    }
    TitleBar {
        id: titleBar
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: parent.top
        main: window.main
    }
    ScreenHost {
        focus: true
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: titleBar.bottom
        anchors.bottom: parent.bottom
        main: window.main
    }
    Loader {
        active: window.sheets.history !== null
        sourceComponent: HistorySheet {
            view: window.sheets.history
            onDismissed: window.content.closeHistory()
        }
    }
}
