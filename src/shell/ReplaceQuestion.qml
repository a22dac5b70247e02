import QtQuick
import QtQuick.Dialogs

// Asks before saving replaces a file.
MessageDialog {
    modality: Qt.ApplicationModal
    buttons: MessageDialog.Save | MessageDialog.Cancel
}
