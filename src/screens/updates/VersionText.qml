import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// A version behind its label, cut off where it is too long. What holds it speaks for it.
RowLayout {
    id: root

    required property string label
    required property string value

    Layout.fillWidth: true
    Layout.maximumWidth: Math.ceil(implicitWidth)
    spacing: Theme.tiny

    CaptionText {
        text: root.label
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }

    CaptionText {
        Layout.fillWidth: true
        color: Theme.text
        elide: Text.ElideRight
        font.weight: Font.Medium
        text: root.value
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }
}
