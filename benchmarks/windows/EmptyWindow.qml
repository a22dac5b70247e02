import QtQuick.Controls.Basic

// As large as the program's own window, and with nothing in it.
ApplicationWindow {
    title: "Empty"
    width: 1280
    height: 800
    visible: true
}
