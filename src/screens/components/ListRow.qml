import QtQuick
import QtQuick.Templates as T

// A row of a list: the whole of it reacts to the pointer and to the keyboard.
T.ItemDelegate {
    id: root

    property string accessibleName: text

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + topPadding + bottomPadding)
    focusPolicy: Qt.StrongFocus
    horizontalPadding: Theme.normal
    hoverEnabled: true
    verticalPadding: Theme.medium

    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleName
    Accessible.onPressAction: root.clicked()

    background: Rectangle {
        color: root.highlighted ? Theme.selection : root.down ? Theme.pressed
             : root.hovered ? Theme.hover : "transparent"
        radius: Theme.smallRadius

        FocusRing {
            anchors.margins: 0
            cornerRadius: Theme.smallRadius - Theme.focusWidth - Theme.borderWidth
            shown: root.visualFocus
        }
    }
}
