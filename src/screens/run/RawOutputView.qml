pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import Quillmere.Components
import Quillmere.Run

// All that the run printed, line by line. Follows the end unless the user scrolled up; lines are
// selected by dragging or with Shift and the arrow keys, and copied.
Rectangle {
    id: root

    required property DirectExecutionSessionViewModel viewModel

    property bool autoScroll: true
    property int anchorRow: -1
    property int headRow: -1
    readonly property int firstSelected: Math.min(anchorRow, headRow)
    readonly property int lastSelected: Math.max(anchorRow, headRow)

    color: Theme.well
    radius: Theme.smallRadius

    border.color: Theme.hairline
    border.width: Theme.borderWidth

    onVisibleChanged: if (visible) list.forceActiveFocus()

    function select(row: int, extend: bool): void {
        root.headRow = Math.max(0, Math.min(list.count - 1, row));
        root.anchorRow = extend && anchorRow >= 0 ? anchorRow : headRow;
        list.currentIndex = headRow;
        list.positionViewAtIndex(headRow, ListView.Contain);
        root.autoScroll = list.atYEnd;
    }

    function selectAll(): void {
        root.anchorRow = 0;
        root.headRow = list.count - 1;
    }

    function copy(): void {
        viewModel.copyRawOutput(firstSelected, headRow < 0 ? list.count - 1 : lastSelected);
    }

    CaptionText {
        anchors.centerIn: parent
        text: "No command-line output captured yet."
        visible: root.viewModel.rawOutputIsEmpty
    }

    ListView {
        id: list

        anchors.fill: parent
        anchors.margins: Theme.small
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        // Whoever follows a flood of lines sees none of those that would be made beforehand.
        cacheBuffer: 0
        clip: true
        highlightFollowsCurrentItem: false
        interactive: wheel.dragEnabled
        keyNavigationEnabled: false
        model: root.viewModel.rawOutput
        reuseItems: true

        Accessible.role: Accessible.List
        Accessible.name: "Command-line output"

        onContentHeightChanged: settle.restart()
        onHeightChanged: settle.restart()
        onMovementEnded: root.autoScroll = atYEnd

        Keys.onPressed: event => keys.handle(event)

        delegate: RawOutputRow {
            width: list.width
            selected: index >= root.firstSelected && index <= root.lastSelected && index >= 0
        }

        ScrollBar.vertical: SlimScrollBar {
            onPressedChanged: root.autoScroll = list.atYEnd
        }

        ScrollWheel {
            id: wheel

            flickable: list

            onScrolled: root.autoScroll = list.atYEnd
        }
    }

    RawOutputMouseArea {
        list: list
        dragEnabled: wheel.dragEnabled

        onRowRequested: (row, extend) => root.select(row, extend)
        onStepRequested: step => root.select(root.headRow + step, true)
    }

    // After the rows that came in have found their heights.
    Timer {
        id: settle

        interval: 0

        onTriggered: if (root.autoScroll) list.positionViewAtEnd()
    }

    RawOutputKeyHandler {
        id: keys

        headRow: root.headRow < 0 ? list.count : root.headRow
        lastRow: list.count - 1

        onSelectAllRequested: root.selectAll()
        onCopyRequested: root.copy()
        onRowRequested: (row, extend) => root.select(row, extend)
    }

    FocusRing {
        shown: list.activeFocus
    }

    Notice {
        id: notice

        anchors.bottom: parent.bottom
        anchors.margins: Theme.medium
        anchors.right: parent.right
    }

    Connections {
        function onRawOutputCopied(text: string): void {
            notice.show(text);
        }

        target: root.viewModel
    }
}
