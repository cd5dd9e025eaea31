import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One command of the history: what it was, what it was for, how and when it ended.
Item {
    id: root

    required property int index
    required property string command
    required property string details
    required property string output
    required property string sentence
    required property string description
    required property string timeText
    required property string outcomeText
    required property string accessibleLabel
    required property bool executed
    required property bool cancelled
    required property bool failed

    readonly property bool current: ListView.isCurrentItem && ListView.view.activeFocus

    implicitHeight: Math.max(Theme.rowHeight + Theme.small,
                             texts.implicitHeight + 2 * Theme.small)

    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleLabel
    Accessible.description: description

    // As in PackageRow.
    ListView.onReused: Accessible.ignored = false

    Rectangle {
        anchors.fill: parent
        color: root.current ? Theme.selection : hover.hovered ? Theme.hover : "transparent"
        radius: Theme.smallRadius
    }

    Hairline {
        anchors.left: parent.left
        anchors.leftMargin: Theme.medium
        anchors.right: parent.right
        anchors.rightMargin: Theme.medium
        visible: root.index > 0
    }

    HoverHandler {
        id: hover
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.medium
        anchors.rightMargin: Theme.normal
        spacing: Theme.medium

        Symbol {
            name: root.executed ? "terminal" : "doc.text"
        }

        ColumnLayout {
            id: texts

            spacing: Theme.tiny / 2

            PlainText {
                Layout.fillWidth: true
                elide: Text.ElideRight
                font.family: Theme.monospacedFamily
                text: root.command
                wrapMode: Text.NoWrap

                Accessible.ignored: true
            }

            CaptionText {
                Layout.fillWidth: true
                elide: Text.ElideRight
                text: root.details
                wrapMode: Text.NoWrap

                Accessible.ignored: true
            }

            CaptionText {
                Layout.fillWidth: true
                elide: Text.ElideRight
                font.family: root.sentence.length > 0 ? Theme.family : Theme.monospacedFamily
                text: root.sentence.length > 0 ? root.sentence : root.output
                visible: text.length > 0
                wrapMode: Text.NoWrap

                Accessible.ignored: true
            }
        }

        Pill {
            spoken: false
            text: "Cancelled"
            tint: "orange"
            visible: root.cancelled
        }

        Pill {
            spoken: false
            text: root.outcomeText
            tint: root.failed ? "red" : root.executed ? "green" : "neutral"
            visible: !root.cancelled
        }

        CaptionText {
            text: root.timeText
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }
    }
}
