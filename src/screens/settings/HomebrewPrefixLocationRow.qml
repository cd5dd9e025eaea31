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

    implicitHeight: Theme.rowHeight - Theme.small

    Accessible.role: Accessible.ListItem
    Accessible.name: label + ", " + relativePath + ", " + statusText

    Hairline {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
    }

    RowLayout {
        anchors.fill: parent
        spacing: Theme.medium

        PlainText {
            Layout.preferredWidth: Theme.sidebarWidth * 0.7
            elide: Text.ElideRight
            text: root.label
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }

        CaptionText {
            Layout.fillWidth: true
            elide: Text.ElideMiddle
            font.family: Theme.monospacedFamily
            text: root.relativePath
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }

        Pill {
            spoken: false
            text: root.statusText
            tint: root.tint
        }
    }
}
