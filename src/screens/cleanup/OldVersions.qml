pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Cleanup
import Quillmere.Components

// The packages that keep old versions. There may be thousands: the list is only as high as the
// view, and moves along with it, so that no more rows exist than can be seen.
SectionBlock {
    id: root

    required property CleanupGuidanceViewModel viewModel
    // What is in view, in the coordinates of this block.
    required property real viewTop
    required property real viewHeight

    symbolName: "shippingbox"
    title: "Old Versions"

    BodyText {
        Layout.fillWidth: true
        text: root.viewModel.oldVersionsText
    }

    ProportionBar {
        Layout.fillWidth: true
        first: root.viewModel.oldVersionCount
        firstTint: "orange"
        second: root.viewModel.currentVersionCount
        secondTint: "neutral"
        visible: root.viewModel.oldVersionCount > 0
    }

    // What the colours mean. The sentence above says as much to whoever does not see them.
    RowLayout {
        spacing: Theme.small
        visible: root.viewModel.oldVersionCount > 0

        Pill {
            spoken: false
            text: root.viewModel.oldShareText
            tint: "orange"
        }

        Pill {
            spoken: false
            text: root.viewModel.currentShareText
        }
    }

    Item {
        id: room

        Layout.fillWidth: true
        Layout.preferredHeight: list.count * Theme.twoLineRowHeight
        visible: list.count > 0

        ListView {
            id: list

            y: Math.max(0, Math.min(root.viewTop - root.padding - room.y, room.height - height))
            width: room.width
            height: Math.min(room.height, root.viewHeight)
            clip: true
            contentY: y
            interactive: false
            keyNavigationEnabled: false
            model: root.viewModel.oldVersions

            Accessible.role: Accessible.List
            Accessible.name: root.title

            delegate: OldVersionRow {
                width: ListView.view.width
            }
        }
    }
}
