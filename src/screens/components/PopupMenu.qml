import QtQuick
import QtQuick.Templates as T

// A menu under a button: arrow keys move in it, Return chooses, Escape closes.
T.Menu {
    id: root

    implicitWidth: Theme.sidebarWidth
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.tiny

    onOpened: root.currentIndex = 0

    background: Rectangle {
        color: Theme.card
        radius: Theme.largeRadius

        border.color: Theme.controlBorder
        border.width: Theme.borderWidth
    }

    contentItem: ListView {
        implicitHeight: contentHeight
        boundsBehavior: Flickable.StopAtBounds
        currentIndex: root.currentIndex
        interactive: false
        model: root.contentModel
    }
}
