import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Quillmere.Components

// One section of the sidebar.
T.ItemDelegate {
    id: root

    required property int index
    required property string title
    required property string symbolName
    // 0 hides the count.
    required property int count
    required property string countText
    required property bool selected
    required property bool listFocused

    readonly property color textColor: !selected ? Theme.text
                               : listFocused ? Theme.accentText : Theme.selectionText

    implicitHeight: Theme.controlHeight + Theme.tiny / 2
    focusPolicy: Qt.NoFocus
    highlighted: selected
    hoverEnabled: true
    text: title

    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: countText
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: root.clicked()

    background: Rectangle {
        color: root.selected ? root.listFocused ? Theme.accent : Theme.selection : root.down ? Theme.pressed
             : root.hovered ? Theme.hover : "transparent"
        radius: Theme.smallRadius
    }

    contentItem: RowLayout {
        spacing: Theme.medium

        Symbol {
            name: root.symbolName
            Layout.leftMargin: Theme.small
            color: root.selected ? root.textColor : Theme.secondaryText
        }

        PlainText {
            Layout.fillWidth: true
            color: root.textColor
            elide: Text.ElideRight
            font.weight: root.selected ? Font.DemiBold : Font.Normal
            text: root.title
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }

        CaptionText {
            Layout.rightMargin: Theme.small
            color: root.selected ? root.textColor : Theme.secondaryText
            text: root.count
            visible: root.count > 0

            Accessible.ignored: true
        }
    }
}
