import QtQuick

// A command or another exact text: monospaced, selectable by mouse and keyboard.
Rectangle {
    id: root

    required property string text

    property string accessibleName: text

    implicitWidth: edit.implicitWidth + 2 * Theme.medium
    implicitHeight: edit.implicitHeight + 2 * Theme.medium
    color: Theme.well
    radius: Theme.smallRadius

    border.color: Theme.hairline
    border.width: Theme.borderWidth

    TextEdit {
        id: edit

        anchors.fill: parent
        anchors.margins: Theme.medium
        activeFocusOnTab: true
        color: Theme.text
        font.family: Theme.monospacedFamily
        font.pixelSize: Theme.bodySize
        readOnly: true
        selectByMouse: true
        selectedTextColor: Theme.selectionText
        selectionColor: Theme.selection
        text: root.text
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.WrapAnywhere

        Accessible.role: Accessible.StaticText
        Accessible.name: root.accessibleName
    }

    FocusRing {
        shown: edit.activeFocus
    }
}
