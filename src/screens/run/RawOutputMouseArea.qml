import QtQuick

// Selects rows with the mouse: a press begins, a drag or a press with Shift extends. Beyond the
// edges the drag goes on row by row. A finger scrolls instead.
MouseArea {
    id: root

    required property ListView list
    required property bool dragEnabled

    signal rowRequested(int row, bool extend)
    signal stepRequested(int step)

    parent: list.contentItem
    y: list.contentY
    z: -1
    width: list.width
    height: list.height
    cursorShape: Qt.IBeamCursor
    preventStealing: !dragEnabled

    onPressed: event => {
        list.forceActiveFocus();
        rowRequested(rowAt(event.y), event.modifiers & Qt.ShiftModifier);
    }
    onPositionChanged: event => {
        if (event.y >= 0 && event.y < height)
            rowRequested(rowAt(event.y), true);
    }

    // Below the last row is the last row.
    function rowAt(y: real): int {
        const row = list.indexAt(0, list.contentY + y);
        return row >= 0 ? row : list.count - 1;
    }

    Timer {
        interval: 40
        repeat: true
        running: root.pressed && (root.mouseY < 0 || root.mouseY >= root.height)

        onTriggered: root.stepRequested(root.mouseY < 0 ? -1 : 1)
    }
}
