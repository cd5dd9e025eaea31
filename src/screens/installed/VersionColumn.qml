import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// A version under its label, as wide in every row, so that they stand in columns.
ColumnLayout {
    id: root

    required property string label
    required property string version

    Layout.fillWidth: false
    Layout.maximumWidth: Theme.versionWidth
    Layout.minimumWidth: Theme.versionWidth
    spacing: Theme.tiny / 2

    CaptionText {
        Layout.fillWidth: true
        elide: Text.ElideRight
        text: root.label
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }

    PlainText {
        Layout.fillWidth: true
        elide: Text.ElideRight
        maximumLineCount: 1
        text: root.version
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }
}
