import QtQuick
import QtQuick.Layouts

// The head of a screen: what it is, how fresh it is, what can be done with all of it.
ColumnLayout {
    id: root

    required property string title
    required property string symbolName

    property string subtitle: ""
    property string freshness: ""
    // What to think of before what is shown is believed.
    property string warning: ""
    default property alias actions: actionRow.data

    spacing: Theme.small

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.medium

        Rectangle {
            implicitWidth: Theme.displaySize * 2 - Theme.tiny
            implicitHeight: implicitWidth
            Layout.alignment: Qt.AlignTop
            color: Theme.tintFill("blue")
            radius: Theme.largeRadius

            Symbol {
                name: root.symbolName
                anchors.centerIn: parent
                color: Theme.blue
                size: Theme.displaySize
            }
        }

        ColumnLayout {
            Layout.alignment: Qt.AlignVCenter
            spacing: Theme.tiny

            DisplayText {
                Layout.fillWidth: true
                text: root.title
            }

            BodyText {
                Layout.fillWidth: true
                color: Theme.secondaryText
                text: root.subtitle
                visible: text.length > 0
            }

            CaptionText {
                Layout.fillWidth: true
                text: root.freshness
                visible: text.length > 0
            }
        }

        RowLayout {
            id: actionRow

            Layout.alignment: Qt.AlignTop
            spacing: Theme.small
        }
    }

    // On a line of its own: it must not take the actions' room.
    Pill {
        symbolName: "exclamationmark.triangle"
        text: root.warning
        tint: "orange"
        visible: text.length > 0
    }
}
