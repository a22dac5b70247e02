import QtQuick
import Quillmere

// The banner at the head of a tool's screen; no taller than nothing while there is nothing to say.
ResultLine {
    id: bar

    required property FDABanner banner

    objectName: "accessBanner"
    visible: banner.isShown
    tone: banner.canBeHidden ? ResultLine.Warning : ResultLine.Success
    symbol: banner.symbol
    text: banner.title
    detail: banner.text
    dismissLabel: banner.canBeHidden ? banner.hideTip : ""
    dismissButton.objectName: "bannerHide"
    onDismissed: banner.hide()

    ActionButton {
        objectName: "bannerButton"
        text: bar.banner.buttonText
        symbol: bar.banner.buttonSymbol
        tip: bar.banner.buttonTip
        onClicked: bar.banner.act()
    }
}
