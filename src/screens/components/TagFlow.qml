pragma ComponentBehavior: Bound

import QtQuick

// Names in as many columns as there is room for. Where they lead somewhere, all together are one
// stop of the keyboard, and the arrow keys go from one to the next. There may be hundreds: the grid
// is only as high as what is in view of it, and moves along with the view.
FocusScope {
    id: root

    required property list<string> items
    // What is in view, in the coordinates of this item.
    required property real viewTop
    required property real viewHeight

    property bool clickable: false
    property string accessibleName: ""

    // Wide enough for the longest name within reason: what is cut off cannot be told apart.
    readonly property int letterCount: Array.from(items).reduce(
        (most, name) => Math.max(most, name.length), 0)
    readonly property real tagWidth: Math.max(Theme.tagWidth, Math.min(
        2 * Theme.tagWidth, letterCount * letters.averageCharacterWidth + 2 * Theme.small))
    readonly property int columns: Math.max(1, Math.floor((width + Theme.small)
                                                          / (tagWidth + Theme.small)))
    readonly property int rows: Math.ceil(items.length / columns)
    readonly property int tagHeight: Math.ceil(letters.height) + 2 * Theme.tiny

    signal chosen(string text)

    implicitWidth: Theme.tagWidth
    implicitHeight: rows * grid.cellHeight - Theme.small
    activeFocusOnTab: clickable

    Accessible.role: Accessible.List
    Accessible.name: accessibleName

    Keys.onPressed: event => {
        event.accepted = clickable && event.modifiers === Qt.NoModifier
                         && setCurrent(grid.currentIndex + offsetForKey(event.key));
    }

    // How far a key goes; nothing for a key that does not.
    function offsetForKey(key: int): int {
        return key === Qt.Key_Left ? -1 : key === Qt.Key_Right ? 1
             : key === Qt.Key_Up ? -columns : key === Qt.Key_Down ? columns
             : key === Qt.Key_Home ? -grid.currentIndex
             : key === Qt.Key_End ? items.length - 1 - grid.currentIndex : 0;
    }

    function setCurrent(index: int): bool {
        if (index === grid.currentIndex || index < 0 || index >= items.length)
            return false;
        grid.currentIndex = index;
        grid.currentItem.forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    FontMetrics {
        id: letters

        font.family: Theme.family
        font.pixelSize: Theme.captionSize
    }

    GridView {
        id: grid

        readonly property real inView: Math.min(root.height, root.viewTop + root.viewHeight)
                                       - Math.max(0, root.viewTop)

        y: Math.max(0, Math.min(root.viewTop, root.height - height))
        width: cellWidth * root.columns
        height: Math.min(root.height, Math.max(cellHeight, inView))
        cacheBuffer: 0
        cellHeight: root.tagHeight + Theme.small
        cellWidth: Math.floor((root.width + Theme.small) / root.columns)
        clip: true
        contentY: y
        focus: true
        highlightFollowsCurrentItem: false
        interactive: false
        keyNavigationEnabled: false
        model: root.items

        delegate: Tag {
            required property int index
            required property string modelData

            width: grid.cellWidth - Theme.small
            height: root.tagHeight
            focus: GridView.isCurrentItem
            clickable: root.clickable
            text: modelData

            onActiveFocusChanged: if (activeFocus) grid.currentIndex = index
            onClicked: root.chosen(modelData)
        }
    }
}
