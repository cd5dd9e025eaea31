pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

// One of a few: a group of radio buttons that lie side by side. Tab enters at the chosen one, the
// arrow keys choose.
FocusScope {
    id: root

    required property string title
    required property list<string> options
    required property int current

    signal picked(int index)

    implicitWidth: row.implicitWidth
    implicitHeight: Math.max(Theme.huge, 2 * Theme.bodySize + Theme.tiny)
    opacity: enabled ? 1 : Theme.disabledOpacity

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Keys.onLeftPressed: step(-1)
    Keys.onUpPressed: step(-1)
    Keys.onRightPressed: step(1)
    Keys.onDownPressed: step(1)

    function step(by: int): void {
        const next = current + by;
        if (next >= 0 && next < options.length) {
            picked(next);
            segments.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
        }
    }

    RowLayout {
        id: row

        anchors.fill: parent
        spacing: Theme.small

        CaptionText {
            text: root.title
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }

        Rectangle {
            Layout.fillHeight: true
            Layout.fillWidth: true
            implicitWidth: segmentRow.implicitWidth + 2 * Theme.borderWidth
            color: Theme.well
            radius: Theme.smallRadius

            border.color: Theme.controlBorder
            border.width: Theme.borderWidth

            RowLayout {
                id: segmentRow

                anchors.fill: parent
                anchors.margins: Theme.borderWidth
                spacing: 0

                Repeater {
                    id: segments

                    model: root.options

                    delegate: Segment {
                        Layout.fillHeight: true
                        Layout.fillWidth: true
                        chosen: index === root.current

                        onPicked: root.picked(index)
                    }
                }
            }
        }
    }
}
