import QtQuick
import Quillmere.Components

// The caveats as Homebrew wrote them, with their indentation, to select and to copy from.
Rectangle {
    id: root

    required property string text

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
        font.pixelSize: Theme.captionSize
        accessibleName: "Caveats: " + root.text
        text: root.text
        wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
    }
}
