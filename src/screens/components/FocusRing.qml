import QtQuick

// Shows where the keyboard is: laid around its parent while `shown`.
Rectangle {
    required property bool shown

    property int corner: Theme.smallRadius

    anchors.fill: parent
    anchors.margins: -Theme.focusWidth - Theme.borderWidth
    color: "transparent"
    radius: corner + Theme.focusWidth + Theme.borderWidth
    visible: shown

    border.color: Theme.accent
    border.width: Theme.focusWidth
}
