import QtQuick

// A short name on a quiet ground. One that leads somewhere is a button.
Rectangle {
    id: root

    required property string text

    property bool clickable: false

    signal clicked

    implicitHeight: label.implicitHeight + 2 * Theme.tiny
    color: Theme.neutralFill
    radius: Theme.smallRadius

    Accessible.role: clickable ? Accessible.Button : Accessible.StaticText
    Accessible.name: text
    Accessible.onPressAction: root.choose(false)

    // A key that is held down presses once.
    Keys.onReturnPressed: event => choose(event.isAutoRepeat)
    Keys.onEnterPressed: event => choose(event.isAutoRepeat)
    Keys.onSpacePressed: event => choose(event.isAutoRepeat)

    function choose(repeated: bool): void {
        if (clickable && !repeated)
            clicked();
    }

    Rectangle {
        anchors.fill: parent
        color: tap.pressed ? Theme.pressed : hover.hovered ? Theme.hover : "transparent"
        radius: parent.radius
        visible: root.clickable
    }

    CaptionText {
        id: label

        anchors.fill: parent
        anchors.bottomMargin: Theme.tiny
        anchors.leftMargin: Theme.small
        anchors.rightMargin: Theme.small
        anchors.topMargin: Theme.tiny
        color: root.clickable ? Theme.accent : Theme.secondaryText
        elide: Text.ElideRight
        text: root.text
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }

    HoverHandler {
        id: hover

        cursorShape: root.clickable ? Qt.PointingHandCursor : Qt.ArrowCursor
        enabled: root.clickable
    }

    TapHandler {
        id: tap

        enabled: root.clickable

        onTapped: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.clicked();
        }
    }

    FocusRing {
        shown: root.activeFocus
    }
}
