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

    SelectableText {
        id: edit

        anchors.fill: parent
        anchors.margins: Theme.medium
        font.family: Theme.monospacedFamily
        accessibleName: root.accessibleName
        text: root.text
        wrapMode: TextEdit.WrapAnywhere
    }
}
