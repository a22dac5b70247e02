import QtQuick
import QtQuick.Templates as T
import Quillmere
import Quillmere.Gallery

// What opens over a window. Here it stands open in its place, and leaves the rest of the gallery in use.
Column {
    width: parent ? parent.width : 0
    spacing: Theme.unit * 8

    GallerySection {
        control: "PopupMenu"
        role: Accessible.PopupMenu
        poses: ["normal", "long text", "right to left"]
        GalleryCell {
            id: lines
            Item {
                id: menuPlace
                width: menu.width
                height: menu.height
                PopupMenu {
                    id: menu
                    title: lines.word
                    parent: menuPlace
                    focus: false
                    margins: -1
                    closePolicy: T.Popup.NoAutoClose
                    Component.onCompleted: visible = true // once it has its place
                    MenuLine {
                        text: lines.word
                        keysText: "Ctrl+T"
                    }
                    MenuLine {
                        isDivider: true
                    }
                    MenuLine {
                        text: lines.word
                        enabled: false
                    }
                }
            }
        }
    }
    GallerySection {
        control: "TipPopup"
        role: Accessible.ToolTip
        poses: ["normal", "long text", "right to left"]
        GalleryCell {
            id: tipped
            Item {
                id: tipPlace
                width: 240
                height: 60
                Tip {
                    control: tipPlace
                    isDue: true
                    text: tipped.word
                }
            }
        }
    }
    GallerySection {
        control: "ConfirmDialog"
        role: Accessible.AlertMessage
        poses: ["normal", "long text", "right to left"]
        GalleryCell {
            id: question
            Item {
                id: questionPlace
                width: dialog.width
                height: dialog.implicitHeight
                ConfirmDialog {
                    id: dialog
                    parent: questionPlace
                    modal: false
                    focus: false
                    margins: -1
                    closePolicy: T.Popup.NoAutoClose
                    title: question.word
                    text: question.word
                    note: question.word
                    cancelLabel: "Cancel"
                    actionLabel: "Delete"
                }
            }
        }
    }
    GallerySection {
        control: "ConfirmDialog"
        variant: "plain"
        role: Accessible.AlertMessage
        poses: ["normal"]
        GalleryCell {
            id: plainQuestion
            Item {
                id: plainQuestionPlace
                width: plainDialog.width
                height: plainDialog.implicitHeight
                ConfirmDialog {
                    id: plainDialog
                    parent: plainQuestionPlace
                    modal: false
                    focus: false
                    margins: -1
                    closePolicy: T.Popup.NoAutoClose
                    title: plainQuestion.word
                    text: plainQuestion.word
                    cancelLabel: "Cancel"
                    actionLabel: "Clean"
                    isDestructive: false
                }
            }
        }
    }
    GallerySection {
        control: "SheetFrame"
        role: Accessible.Dialog
        poses: ["normal", "long text", "right to left"]
        GalleryCell {
            id: sheetCell
            Item {
                id: sheetPlace
                width: 600
                height: 260
                SheetFrame {
                    parent: sheetPlace
                    modal: false
                    focus: false
                    margins: -1
                    closePolicy: T.Popup.NoAutoClose
                    title: sheetCell.word
                    symbol: "clock"
                    closeLabel: "Close"
                    summary: "128"
                }
            }
        }
    }
    GallerySection {
        control: "PlainAlert"
        role: Accessible.AlertMessage
        poses: ["normal", "long text", "right to left"]
        GalleryCell {
            id: news
            Item {
                id: newsPlace
                width: alert.width
                height: alert.implicitHeight
                PlainAlert {
                    id: alert
                    parent: newsPlace
                    modal: false
                    focus: false
                    margins: -1
                    closePolicy: T.Popup.NoAutoClose
                    title: news.word
                    text: news.word
                    closeLabel: "OK"
                }
            }
        }
    }
    GallerySection {
        control: "TextPrompt"
        role: Accessible.AlertMessage
        poses: ["normal", "long text", "right to left"]
        GalleryCell {
            id: asked
            Item {
                id: askedPlace
                width: prompt.width
                height: prompt.implicitHeight
                TextPrompt {
                    id: prompt
                    parent: askedPlace
                    modal: false
                    focus: false
                    margins: -1
                    closePolicy: T.Popup.NoAutoClose
                    title: asked.word
                    text: asked.word
                    initialText: asked.word
                    fieldLabel: "Name"
                    cancelLabel: "Cancel"
                    actionLabel: "Rename"
                }
            }
        }
    }
}
