import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One well-known location: its name, where it lies, what was found there.
Item {
    id: root

    required property int index
    required property string label
    required property string relativePath
    required property string statusText
    required property string tint
    required property string foundAtText

    implicitHeight: Math.max(Theme.rowHeight - Theme.small, row.implicitHeight + Theme.small)

    Accessible.role: Accessible.ListItem
    Accessible.name: label + ", " + relativePath + ", " + statusText
                     + (foundAtText.length > 0 ? ", " + foundAtText : "")

    Hairline {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
    }

    RowLayout {
        id: row

        anchors.fill: parent
        spacing: Theme.medium

        PlainText {
            Layout.preferredWidth: Theme.sidebarWidth * 0.7
            elide: Text.ElideRight
            text: root.label
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0

            CaptionText {
                Layout.fillWidth: true
                elide: Text.ElideMiddle
                font.family: Theme.monospacedFamily
                text: root.relativePath
                wrapMode: Text.NoWrap

                Accessible.ignored: true
            }

            CaptionText {
                Layout.fillWidth: true
                text: root.foundAtText
                visible: text.length > 0

                Accessible.ignored: true
            }
        }

        Pill {
            spoken: false
            text: root.statusText
            tint: root.tint
        }
    }
}
