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

    implicitHeight: Theme.twoLineRowHeight

    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleLabel

    Hairline {
        anchors.left: parent.left
        anchors.right: parent.right
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.tiny

        RowLayout {
            spacing: Theme.small

            PlainText {
                Layout.fillWidth: true
                Layout.maximumWidth: Math.ceil(implicitWidth)
                elide: Text.ElideRight
                font.weight: Font.DemiBold
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
            elide: Text.ElideRight
            text: root.versionsText
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }
    }
}
