pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.Components

// The time in which data is fresh, in equal parts: those that are left are filled. All of them are
// over when the data is stale, which shows as one colour of warning. The text beside it says it.
Row {
    id: root

    required property int parts
    required property int partsLeft

    spacing: Theme.tiny / 2

    Accessible.ignored: true

    Repeater {
        model: root.parts

        delegate: Rectangle {
            required property int index

            implicitWidth: Theme.small
            implicitHeight: Theme.small
            color: root.partsLeft === 0 ? Theme.orange
                 : index < root.partsLeft ? Theme.green : Theme.neutralFill
            radius: Theme.tiny / 2
        }
    }
}
