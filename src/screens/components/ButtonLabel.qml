import QtQuick

// The inside of a button: its symbol and its text, centred. The button speaks for it.
Item {
    id: root

    required property string text
    required property string symbolName
    required property color textColor

    readonly property real symbolWidth: symbolName.length > 0 ? symbol.width + row.spacing : 0

    implicitWidth: Math.ceil(symbolWidth + label.implicitWidth)
    implicitHeight: row.implicitHeight

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Theme.small

        Symbol {
            id: symbol

            name: root.symbolName
            anchors.verticalCenter: parent.verticalCenter
            color: root.textColor
            size: Theme.symbolSize - Theme.tiny / 2
            visible: root.symbolName.length > 0
        }

        PlainText {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            color: root.textColor
            elide: Text.ElideRight
            font.weight: Font.Medium
            text: root.text
            width: Math.min(implicitWidth, root.width - root.symbolWidth)
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }
    }
}
