pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import Quillmere.Components

// A list of packages. Arrow and Page keys move in it, Return or a click opens. The row where the
// keyboard is has the focus itself, so that it is spoken.
ListView {
    id: root

    required property string summary

    readonly property int page: Math.max(1, Math.floor(height / Theme.rowHeight) - 1)

    signal opened(int row)

    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    // Rows are cheap: none is made outside the view.
    cacheBuffer: 0
    clip: true
    highlightMoveDuration: 0
    interactive: wheel.dragEnabled
    // Also under the pointer, where nothing may be dragged.
    keyNavigationEnabled: true
    reuseItems: true

    Accessible.role: Accessible.List
    Accessible.name: summary

    Keys.onReturnPressed: event => open(event)
    Keys.onEnterPressed: event => open(event)
    Keys.onPressed: event => {
        const row = rowForKey(event.key);
        event.accepted = row >= 0;
        if (event.accepted)
            root.currentIndex = Math.max(0, Math.min(count - 1, row));
    }

    function open(event: KeyEvent): void {
        if (!event.isAutoRepeat && currentIndex >= 0)
            opened(currentIndex);
    }

    // The row that a key leads to, if need be beyond the ends; -1 for another key.
    function rowForKey(key: int): int {
        return key === Qt.Key_PageUp ? Math.max(0, currentIndex - page)
             : key === Qt.Key_PageDown ? currentIndex + page
             : key === Qt.Key_Home ? 0 : key === Qt.Key_End ? count : -1;
    }

    function choose(row: int): void {
        root.currentIndex = row;
        forceActiveFocus(Qt.MouseFocusReason);
        opened(row);
    }

    ScrollBar.vertical: SlimScrollBar {
    }

    ScrollWheel {
        id: wheel

        flickable: root
    }

    // Another search begins at its first answer.
    Connections {
        function onRowsReplaced(): void {
            root.currentIndex = 0;
            root.positionViewAtBeginning();
        }

        target: root.model as QtObject
    }
}
