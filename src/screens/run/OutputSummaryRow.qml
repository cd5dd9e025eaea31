import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One row of the summary. What is too long for it stands in the output itself.
RowLayout {
    id: root

    required property string title
    required property string detail
    required property string symbolName
    required property string shownTint

    // Homebrew's own columns.
    readonly property bool isTable: detail.includes("\n")

    spacing: Theme.small

    Symbol {
        name: root.symbolName
        Layout.alignment: Qt.AlignTop
        color: Theme.tint(root.shownTint)
    }

    ColumnLayout {
        spacing: Theme.tiny / 2

        PlainText {
            Layout.fillWidth: true
            elide: Text.ElideRight
            maximumLineCount: 3
            text: root.title
        }

        CaptionText {
            Layout.fillWidth: true
            elide: Text.ElideRight
            font.family: root.isTable ? Theme.monospacedFamily : Theme.family
            maximumLineCount: 10
            text: root.detail
            visible: text.length > 0
        }
    }
}
