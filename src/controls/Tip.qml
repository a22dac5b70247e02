import QtQuick
import Quillmere

// The tooltip of a control, made only when it is due. A key or a click sends it away until the pointer comes anew.
Loader {
    required property Item control
    required property bool isDue
    property string text
    property bool isSpent: false

    active: isDue && !isSpent && text.length > 0
    source: Qt.resolvedUrl("TipPopup.qml")
    // Controls say that it is not due while they are pressed, and the pointer has not gone then.
    onIsDueChanged: if (!isDue && !InputWatch.isButtonDown()) isSpent = false
}
