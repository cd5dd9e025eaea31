import QtQuick
import QtQuick.Templates as T

T.ScrollBar {
    id: root

    implicitWidth: Theme.medium
    implicitHeight: Theme.medium
    minimumSize: 0.06
    padding: Theme.tiny - Theme.borderWidth
    visible: size < 1

    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: Theme.small - Theme.tiny / 2
        implicitHeight: Theme.small - Theme.tiny / 2
        color: Theme.secondaryText
        opacity: root.pressed ? 0.8 : root.hovered ? 0.6 : 0.35
        radius: width / 2
    }
}
