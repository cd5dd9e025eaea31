import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// The program introduces itself.
RowLayout {
    id: root

    required property string tagline

    property string text: ""
    property string badge: ""

    spacing: Theme.normal

    Rectangle {
        implicitWidth: Theme.displaySize * 2 + Theme.large
        implicitHeight: implicitWidth
        Layout.alignment: Qt.AlignTop
        color: Theme.tintFill("blue")
        radius: Theme.largeRadius

        Symbol {
            name: "lightbulb"
            anchors.centerIn: parent
            color: Theme.blue
            size: Theme.displaySize + Theme.normal
        }
    }

    ColumnLayout {
        Layout.alignment: Qt.AlignVCenter
        spacing: Theme.tiny

        DisplayText {
            Layout.fillWidth: true
            text: "Quillmere"
        }

        BodyText {
            Layout.fillWidth: true
            font.weight: Font.Medium
            text: root.tagline
        }

        BodyText {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: root.text
            visible: text.length > 0
        }

        Pill {
            Layout.topMargin: Theme.tiny
            symbolName: "checkmark.shield"
            text: root.badge
            tint: "green"
            visible: text.length > 0
        }
    }
}
