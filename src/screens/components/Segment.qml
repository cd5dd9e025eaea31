import QtQuick

// One choice of a `SegmentedPicker`.
Item {
    id: root

    required property int index
    required property string modelData

    property bool chosen: false

    signal picked

    implicitWidth: label.implicitWidth + 2 * Theme.medium
    // A choice that loses its tab stop keeps it until the keyboard is elsewhere.
    activeFocusOnTab: chosen || activeFocus
    focus: chosen

    Accessible.role: Accessible.RadioButton
    Accessible.name: modelData
    Accessible.checkable: true
    Accessible.checked: chosen
    Accessible.focusable: true
    Accessible.onPressAction: root.picked()
    Accessible.onToggleAction: root.picked()

    Keys.onSpacePressed: picked()

    Rectangle {
        anchors.fill: parent
        anchors.margins: Theme.borderWidth
        color: root.chosen ? Theme.selection : tap.pressed ? Theme.pressed
             : hover.hovered ? Theme.hover : "transparent"
        radius: Theme.smallRadius - Theme.borderWidth
    }

    PlainText {
        id: label

        anchors.centerIn: parent
        color: root.chosen ? Theme.selectionText : Theme.text
        font.weight: root.chosen ? Font.DemiBold : Font.Normal
        text: root.modelData
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }

    FocusRing {
        anchors.margins: 0
        shown: root.activeFocus
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap

        onTapped: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.picked();
        }
    }
}
