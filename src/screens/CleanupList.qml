pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import Quillmere.Components
import Quillmere.Screens

// The guidance of a loaded inventory. All of it is one list, so that only the rows in view cost
// anything; what stands above and below the old versions is the list's header and footer.
ListView {
    id: root

    required property CleanupGuidanceViewModel viewModel

    readonly property real side: Math.max(Theme.large, (width - Theme.textWidth) / 2)

    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    interactive: wheel.touched
    keyNavigationEnabled: false
    model: viewModel.oldVersions

    Accessible.role: Accessible.List
    Accessible.name: "Cleanup Guidance"

    Keys.onPressed: event => {
        const distance = event.key === Qt.Key_Up ? -Theme.rowHeight
                       : event.key === Qt.Key_Down ? Theme.rowHeight
                       : event.key === Qt.Key_PageUp ? -height
                       : event.key === Qt.Key_PageDown ? height : 0;
        wheel.scrollBy(distance);
        event.accepted = distance !== 0;
    }

    header: Item {
        readonly property Item listHead: introduction.listHead

        width: root.width
        height: introduction.implicitHeight + Theme.large

        CleanupIntroduction {
            id: introduction

            x: root.side
            y: Theme.large
            width: parent.width - 2 * root.side
            viewModel: root.viewModel
        }
    }

    delegate: OldVersionRow {
        width: ListView.view.width
        margin: root.side + Theme.normal + Theme.tiny
    }

    footer: Item {
        width: root.width
        height: rest.implicitHeight + Theme.normal + Theme.large

        CleanupCache {
            id: rest

            x: root.side
            y: Theme.normal
            width: parent.width - 2 * root.side
            viewModel: root.viewModel
        }
    }

    ScrollBar.vertical: SlimScrollBar {
    }

    ScrollWheel {
        id: wheel

        flickable: root
    }

    // The card around the old versions, from the end of the header to the beginning of the footer.
    Rectangle {
        readonly property real cardTop: root.headerItem
                                        ? root.headerItem.y + root.headerItem.height
                                          - root.headerItem.listHead.height : 0

        parent: root.contentItem
        x: root.side
        y: cardTop
        z: -1
        width: root.width - 2 * root.side
        height: root.footerItem ? root.footerItem.y - cardTop : 0
        color: Theme.card
        radius: Theme.largeRadius

        border.color: Theme.hairline
        border.width: Theme.borderWidth
    }

    // What the keyboard reaches comes into view.
    Connections {
        function onActiveFocusItemChanged(): void {
            const item = root.Window.activeFocusItem;
            if (root.activeFocus && item !== root)
                root.contentY = Math.max(root.originY, Math.min(
                    item.mapToItem(root.contentItem, 0, 0).y - Theme.huge, Math.max(
                        root.contentY, item.mapToItem(root.contentItem, 0, item.height).y
                            + Theme.huge - root.height)));
        }

        target: root.Window.window
    }
}
