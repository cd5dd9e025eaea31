pragma ComponentBehavior: Bound

import QtQuick

// How large each of a few counts is beside the others, as a picture: the counts themselves stand in
// the text beside it. One of any size can be seen; none takes no room.
Item {
    id: root

    required property list<int> counts
    required property list<string> tints

    // What assistive technology says of it; nothing where the text beside it says all.
    property string spokenText: ""

    readonly property int total: counts.reduce((sum, count) => sum + count, 0)

    implicitWidth: Theme.barWidth
    implicitHeight: Theme.small
    visible: total > 0

    Accessible.role: Accessible.Graphic
    Accessible.name: spokenText
    Accessible.ignored: spokenText.length === 0

    Row {
        id: row

        readonly property int shown: root.counts.filter(count => count > 0).length
        // What is left for the shares when each has its least width and the gaps are taken off.
        readonly property real room: width - shown * Theme.tiny
                                     - (shown - 1) * Theme.tiny / 2

        anchors.fill: parent
        spacing: Theme.tiny / 2

        Repeater {
            model: root.counts.length

            delegate: Rectangle {
                required property int index

                width: Theme.tiny + row.room * root.counts[index] / Math.max(1, root.total)
                height: row.height
                color: Theme.tint(root.tints[index])
                opacity: 0.7
                radius: height / 2
                visible: root.counts[index] > 0
            }
        }
    }
}
