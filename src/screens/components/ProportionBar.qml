import QtQuick

// How large each of up to three counts is beside the others, as a picture: the counts themselves
// stand in the text beside it. One of any size can be seen; none takes no availableWidth.
Item {
    id: root

    required property int first
    required property int second
    required property string firstTint
    required property string secondTint

    property int third: 0
    property string thirdTint: ""

    readonly property int total: first + second + third
    readonly property int parts: (first > 0 ? 1 : 0) + (second > 0 ? 1 : 0) + (third > 0 ? 1 : 0)
    // What is left for the shares when each has its least width and the gaps are taken off.
    readonly property real availableWidth: width - parts * Theme.tiny - (parts - 1) * row.spacing
    readonly property real unit: availableWidth / Math.max(1, total)

    implicitWidth: Theme.barWidth
    implicitHeight: Theme.small
    visible: total > 0

    Accessible.ignored: true

    component Part: Rectangle {
        required property int count
        required property string tint
        // What one of the count is wide.
        required property real unit

        width: Theme.tiny + unit * count
        height: Theme.small
        color: Theme.tint(tint)
        opacity: 0.7
        radius: height / 2
        visible: count > 0
    }

    Row {
        id: row

        spacing: Theme.tiny / 2

        Part {
            count: root.first
            tint: root.firstTint
            unit: root.unit
        }

        Part {
            count: root.second
            tint: root.secondTint
            unit: root.unit
        }

        Part {
            count: root.third
            tint: root.thirdTint
            unit: root.unit
        }
    }
}
