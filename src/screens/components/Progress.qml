import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T

// That something goes on, how far it has come where that is known, and what can be done about it.
// Stays unseen for as long as a short wait lasts, so that nothing flickers.
ColumnLayout {
    id: root

    required property string title

    // How far, in words: bytes, packages.
    property string details: ""
    // From nothing to all; negative where all is not known.
    property real fraction: -1
    default property alias actions: actionRow.data

    property bool delayElapsed: false
    readonly property bool determinate: fraction >= 0

    opacity: delayElapsed ? 1 : 0
    spacing: Theme.small

    onVisibleChanged: if (!root.visible) root.delayElapsed = false

    Timer {
        interval: Theme.progressDelay
        running: root.visible && !root.delayElapsed

        onTriggered: root.delayElapsed = true
    }

    BodyText {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: root.title
    }

    T.ProgressBar {
        id: bar

        Layout.fillWidth: true
        implicitHeight: Theme.tiny
        indeterminate: !root.determinate
        value: root.determinate ? Math.min(1, root.fraction) : 0

        Accessible.role: Accessible.ProgressBar
        Accessible.name: root.title
        Accessible.description: root.details

        background: Rectangle {
            color: Theme.neutralFill
            radius: height / 2
        }

        contentItem: Item {
            clip: true

            Rectangle {
                x: root.determinate ? 0 : (parent.width + width) * sweep.at - width
                width: root.determinate ? parent.width * bar.position : parent.width / 4
                height: parent.height
                color: Theme.accent
                radius: height / 2
            }
        }

        NumberAnimation {
            id: sweep

            property real at: 0

            target: sweep
            property: "at"
            from: 0
            to: 1
            duration: Theme.turnDuration
            loops: Animation.Infinite
            running: root.visible && !root.determinate
        }
    }

    CaptionText {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: root.details

        Accessible.ignored: text.length === 0
    }

    RowLayout {
        id: actionRow

        Layout.alignment: Qt.AlignHCenter
        Layout.topMargin: Theme.tiny
        spacing: Theme.small
        visible: children.length > 0
    }
}
