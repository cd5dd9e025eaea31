import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

// A screen whose content flows from top to bottom and scrolls when it does not fit. What takes the
// keyboard focus comes into view.
FocusScope {
    id: root

    default property alias content: column.data
    property int margin: Theme.large
    // The upper edge of what is in view, in the coordinates of the content.
    readonly property real viewTop: flickable.contentY - margin
    readonly property bool overflows: flickable.contentHeight > flickable.height

    implicitHeight: flickable.contentHeight

    function announce(text: string): void {
        announcer.announce(text);
    }

    function revealFocus(): void {
        const item = root.Window.activeFocusItem;
        if (root.activeFocus && item && item !== flickable)
            reveal(item);
    }

    function reveal(item: Item): void {
        const top = item.mapToItem(column, 0, 0).y;
        const needed = Math.min(top - root.margin, Math.max(
            flickable.contentY, top + item.height + 3 * root.margin - flickable.height));
        wheel.scrollBy(needed - flickable.contentY);
    }

    Flickable {
        id: flickable

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: column.implicitHeight + 2 * root.margin
        contentWidth: width
        interactive: wheel.dragEnabled

        ScrollBar.vertical: SlimScrollBar {
        }

        Keys.onUpPressed: wheel.scrollBy(-Theme.rowHeight)
        Keys.onDownPressed: wheel.scrollBy(Theme.rowHeight)
        Keys.onPressed: event => {
            const distance = event.key === Qt.Key_PageUp ? Theme.rowHeight - height
                           : event.key === Qt.Key_PageDown ? height - Theme.rowHeight
                           : event.key === Qt.Key_Home ? -contentHeight
                           : event.key === Qt.Key_End ? contentHeight : 0;
            event.accepted = distance !== 0;
            if (event.accepted)
                wheel.scrollBy(distance);
        }

        ColumnLayout {
            id: column

            x: (flickable.width - width) / 2
            y: root.margin
            width: Math.min(flickable.width - 2 * root.margin, Theme.textWidth)
            spacing: Theme.normal
        }
    }

    ScrollWheel {
        id: wheel

        flickable: flickable
    }

    // What was only just made has no place yet.
    Timer {
        id: settle

        interval: 0

        onTriggered: root.revealFocus()
    }

    // Last, so that what it says is not read before the screen.
    Announcer {
        id: announcer
    }

    Connections {
        function onActiveFocusItemChanged(): void {
            settle.restart();
        }

        target: root.Window.window
    }
}
