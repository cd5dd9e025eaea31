import QtQuick

// Shows where the keyboard is: laid around its parent while `shown`.
Rectangle {
    required property bool shown

    property int cornerRadius: Theme.smallRadius

    anchors.fill: parent
    anchors.margins: -Theme.focusWidth - Theme.borderWidth
    color: "transparent"
    radius: cornerRadius + Theme.focusWidth + Theme.borderWidth
    visible: shown

    border.color: Theme.accent
    border.width: Theme.focusWidth
}
