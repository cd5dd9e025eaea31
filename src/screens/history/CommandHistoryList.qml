pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.History

// The records that match the search, as far as they fit.
Card {
    id: root

    required property CommandHistoryViewModel viewModel

    readonly property real fullHeight: list.contentHeight + 2 * padding

    padding: Theme.tiny

    function takeFocus(): void {
        list.forceActiveFocus();
    }

    ListView {
        id: list

        Layout.fillHeight: true
        Layout.fillWidth: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        // Rows are cheap: none is made outside the view.
        cacheBuffer: 0
        clip: true
        focus: true
        interactive: wheel.dragEnabled
        // Also under the pointer, where nothing may be dragged.
        keyNavigationEnabled: true
        model: root.viewModel.records
        reuseItems: true

        Accessible.role: Accessible.List
        Accessible.name: "Command history"

        delegate: CommandHistoryRow {
            width: ListView.view.width
        }

        ScrollBar.vertical: SlimScrollBar {
        }

        ScrollWheel {
            id: wheel

            flickable: list
        }

        // Another search begins at its first answer.
        Connections {
            function onRowsReplaced(): void {
                list.currentIndex = 0;
                list.positionViewAtBeginning();
            }

            target: root.viewModel.records
        }
    }
}
