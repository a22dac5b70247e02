import QtQuick
import QtQuick.Dialogs

// Asks before saving replaces a file.
MessageDialog {
    modality: Qt.ApplicationModal
    // The type's description, which the linter reads, leaves the buttons out.
    buttons: MessageDialog.Save | MessageDialog.Cancel // qmllint disable
}
