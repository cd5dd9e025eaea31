import QtQuick
import QtQuick.Templates as T
import Quillmere.Components

// One section of the sidebar.
T.ItemDelegate {
    id: root

    required property int index
    required property string title
    required property string symbolName
    required property bool selected
    required property bool keyboardHere

    readonly property color ink: !selected ? Theme.text
                               : keyboardHere ? Theme.accentText : Theme.selectionText

    implicitHeight: Theme.controlHeight + Theme.tiny / 2
    focusPolicy: Qt.NoFocus
    highlighted: selected
    hoverEnabled: true
    text: title

    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: root.clicked()

    background: Rectangle {
        color: root.selected ? root.keyboardHere ? Theme.accent : Theme.selection : root.down ? Theme.pressed
             : root.hovered ? Theme.hover : "transparent"
        radius: Theme.smallRadius
    }

    contentItem: Row {
        leftPadding: Theme.small
        spacing: Theme.medium

        Symbol {
            name: root.symbolName
            anchors.verticalCenter: parent.verticalCenter
            color: root.selected ? root.ink : Theme.secondaryText
        }

        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            color: root.ink
            font.weight: root.selected ? Font.DemiBold : Font.Normal
            text: root.title
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }
    }
}
