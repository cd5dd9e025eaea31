import QtQuick

// A short word on a tinted ground: a status, a risk, a kind.
Rectangle {
    id: root

    required property string text

    property string tint: "neutral"
    property string symbolName: ""
    // Off where what holds the pill says its word.
    property bool spoken: true

    readonly property real symbolWidth: symbolName.length > 0 ? symbol.width + row.spacing : 0

    implicitWidth: Math.ceil(symbolWidth + label.implicitWidth) + 2 * Theme.small
    implicitHeight: row.implicitHeight + Theme.tiny
    color: Theme.tintFill(tint)
    radius: height / 2

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Theme.tiny

        Symbol {
            id: symbol

            name: root.symbolName
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.tint(root.tint)
            size: Theme.captionSize + Theme.borderWidth
            visible: root.symbolName.length > 0
        }

        CaptionText {
            id: label

            width: Math.min(implicitWidth, root.width - root.symbolWidth - 2 * Theme.small)
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.tint(root.tint)
            elide: Text.ElideRight
            font.weight: Font.Medium
            text: root.text
            wrapMode: Text.NoWrap

            Accessible.ignored: !root.spoken
        }
    }
}
