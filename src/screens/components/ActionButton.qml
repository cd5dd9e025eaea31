import QtQuick
import QtQuick.Templates as T

// What all buttons have in common. Mouse, Space, Return and the press action of assistive
// technology all end in `clicked`.
T.Button {
    id: root

    property string symbolName: ""
    property string accessibleName: text
    property string help: ""
    property color textColor: Theme.text
    property color fill: Theme.card
    property color outline: Theme.controlBorder

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding,
                            Theme.controlHeight * 2)
    implicitHeight: Math.max(Theme.controlHeight, implicitContentHeight + 2 * Theme.small)
    focusPolicy: Qt.StrongFocus
    horizontalPadding: Theme.medium
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity

    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    // Qt does not tell assistive technology that a button is off.
    Accessible.description: enabled ? help : "Not available now."
    Accessible.onPressAction: root.press(false)

    // A key that is held down presses once.
    Keys.onReturnPressed: event => press(event.isAutoRepeat)
    Keys.onEnterPressed: event => press(event.isAutoRepeat)

    function press(repeated: bool): void {
        if (enabled && !repeated)
            clicked();
    }

    background: Rectangle {
        color: root.fill
        radius: Theme.smallRadius

        border.color: root.outline
        border.width: Theme.borderWidth

        Rectangle {
            anchors.fill: parent
            color: root.down ? Theme.pressed : root.hovered ? Theme.hover : "transparent"
            radius: parent.radius
        }

        FocusRing {
            // Also where the keyboard was put and not led by Tab: in a sheet that just opened.
            shown: root.activeFocus && root.focusReason !== Qt.MouseFocusReason
        }
    }

    contentItem: ButtonLabel {
        textColor: root.textColor
        symbolName: root.symbolName
        text: root.text
    }
}
