import QtQuick

// What the keys mean in the raw output.
QtObject {
    id: root

    required property int headRow
    required property int lastRow

    readonly property int page: 10

    signal selectAllRequested
    signal copyRequested
    signal rowRequested(int row, bool extend)

    // The row that a key moves to; nothing for a key that does not.
    function rowForKey(key: int): int {
        return key === Qt.Key_Up ? headRow - 1 : key === Qt.Key_Down ? headRow + 1
             : key === Qt.Key_PageUp ? headRow - page : key === Qt.Key_PageDown ? headRow + page
             : key === Qt.Key_Home ? 0 : key === Qt.Key_End ? lastRow : headRow;
    }

    function handle(event: KeyEvent): void {
        event.accepted = true;
        if (event.matches(StandardKey.SelectAll))
            selectAllRequested();
        else if (event.matches(StandardKey.Copy))
            copyRequested();
        else if (rowForKey(event.key) !== headRow)
            rowRequested(rowForKey(event.key), event.modifiers & Qt.ShiftModifier);
        else
            event.accepted = false;
    }
}
