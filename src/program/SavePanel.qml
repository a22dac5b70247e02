import QtQuick
import QtQuick.Dialogs

// The program's own panel for saving, for a desktop that offers none. It leaves it to its caller to ask before a file
// is replaced: not every version of it does.
FileDialog {
    modality: Qt.ApplicationModal
    fileMode: FileDialog.SaveFile
    // The type's description, which the linter reads, leaves this property out.
    options: FileDialog.DontConfirmOverwrite // qmllint disable
}
