import QtQuick

// The tooltip of a control, made only when it is due.
Loader {
    required property Item control
    required property bool isDue
    property string text

    active: isDue && text.length > 0
    source: Qt.resolvedUrl("TipPopup.qml")
}
