import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One package that keeps old versions.
Item {
    id: root

    required property string name
    required property string kindText
    required property string versionsText
    required property string accessibleLabel

    property real margin: 0

    implicitHeight: texts.implicitHeight + 2 * Theme.small

    Hairline {
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.right: parent.right
        anchors.rightMargin: root.margin
    }

    ColumnLayout {
        id: texts

        anchors.fill: parent
        anchors.bottomMargin: Theme.small
        anchors.leftMargin: root.margin
        anchors.rightMargin: root.margin
        anchors.topMargin: Theme.small
        spacing: Theme.tiny

        Accessible.role: Accessible.ListItem
        Accessible.name: root.accessibleLabel

        RowLayout {
            spacing: Theme.small

            PlainText {
                Layout.fillWidth: true
                Layout.maximumWidth: Math.ceil(implicitWidth)
                elide: Text.ElideRight
                font.weight: Font.Medium
                text: root.name
                wrapMode: Text.NoWrap

                Accessible.ignored: true
            }

            Pill {
                spoken: false
                text: root.kindText
            }

            Item {
                Layout.fillWidth: true
            }
        }

        CaptionText {
            Layout.fillWidth: true
            text: root.versionsText

            Accessible.ignored: true
        }
    }
}
