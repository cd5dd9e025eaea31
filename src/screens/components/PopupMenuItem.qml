import QtQuick
import QtQuick.Templates as T

T.MenuItem {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    horizontalPadding: Theme.medium
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.onPressAction: root.clicked()

    background: Rectangle {
        color: root.highlighted ? Theme.selection : "transparent"
        radius: Theme.smallRadius
    }

    contentItem: PlainText {
        color: root.highlighted ? Theme.selectionText : Theme.text
        text: root.text
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }
}
