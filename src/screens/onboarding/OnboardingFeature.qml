import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One thing that the program does, and on what terms.
RowLayout {
    id: root

    required property string symbolName
    required property string title
    required property string text

    Layout.alignment: Qt.AlignTop
    Layout.fillWidth: true
    Layout.preferredWidth: Theme.alertWidth
    spacing: Theme.medium

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Symbol {
        name: root.symbolName
        Layout.alignment: Qt.AlignTop
        color: Theme.accent
        size: Theme.displaySize
    }

    ColumnLayout {
        Layout.alignment: Qt.AlignTop
        spacing: Theme.tiny

        PlainText {
            Layout.fillWidth: true
            font.weight: Font.DemiBold
            text: root.title

            Accessible.role: Accessible.Heading
        }

        BodyText {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: root.text
        }
    }
}
