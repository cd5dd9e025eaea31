import QtQuick
import Quillmere.Components

// Text that is shown as it is and can be selected and copied, by mouse and by keyboard.
TextEdit {
    id: root

    property string accessibleName: text

    activeFocusOnTab: true
    color: Theme.text
    font.pixelSize: Theme.bodySize
    readOnly: true
    selectByMouse: true
    selectedTextColor: Theme.selectionText
    selectionColor: Theme.selection
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap

    Accessible.role: Accessible.StaticText
    Accessible.name: accessibleName

    onActiveFocusChanged: if (!activeFocus) deselect()

    ShortcutPassthrough {
        target: root
    }

    // As high as the text is now: a layout may still think of another height.
    Item {
        width: root.width
        height: root.contentHeight

        FocusRing {
            shown: root.activeFocus
        }
    }

    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }
}
