import QtQuick
import Quillmere

// Stands where a screen will be.
Item {
    id: screen

    required property UpcomingView view

    EmptyState {
        anchors.centerIn: parent
        width: Math.min(parent.width - Theme.unit * 16, 440)
        isScreen: true
        symbol: screen.view.symbol
        text: screen.view.title
        detail: screen.view.description
    }
}
