pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// A bar of parts beside each other. Each part is told as: share (of the whole bar, from 0 to 1), fill (colour), label (for
// assistive technology), tip, and isLink, where a press on it asks for something. What they leave is free space.
Item {
    id: bar

    required property var parts
    required property string label // of all together, for assistive technology
    property int least: 4          // pixels of a part above nothing

    signal chosen(int index)

    readonly property var widths: BarWidths.of(Array.from(parts, part => part.share), width, least)

    implicitHeight: 14
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    Pill {
        anchors.fill: parent
        radius: Theme.tileRadius
        color: Theme.free
    }
    FocusRow {
        id: row
        anchors.fill: parent
        model: bar.parts
        onMoved: index => stop = index
        delegate: ButtonBase {
            id: part

            required property int index
            required property var modelData

            readonly property bool isLink: modelData.isLink ?? false
            readonly property real start: (parent?.x ?? 0) + x // in the bar

            implicitWidth: bar.widths[index] ?? 0
            height: bar.height
            visible: width > 0
            focusPolicy: !isLink ? Qt.NoFocus : index === row.stop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            tip: modelData.tip ?? ""
            corner: Theme.tileRadius
            toldRole: isLink ? Accessible.Button : Accessible.StaticText
            Accessible.name: modelData.label ?? ""
            onClicked: if (isLink) bar.chosen(index)

            // Round where the bar is.
            background: Pill {
                radius: Theme.tileRadius
                openEdges: (part.start > 0 ? Qt.LeftEdge : 0) | (part.start + part.width < row.width ? Qt.RightEdge : 0)
                color: part.modelData.fill
                Pill {
                    anchors.fill: parent
                    visible: part.isLink && part.hovered
                    radius: parent.radius
                    openEdges: parent.openEdges
                    color: part.down ? Theme.pressed : Theme.hover
                }
                FocusRing {
                    visible: part.visualFocus
                    anchors.margins: -borderWidth
                    isDouble: true
                }
            }
        }
    }
}
