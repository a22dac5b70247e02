import QtQuick
import QtQuick.Dialogs

// The program's own folder panel, for a desktop that offers none.
FolderDialog {
    modality: Qt.ApplicationModal
}
