import QtQuick

// Speaks a change that shows elsewhere: assistive technology reads a notification aloud when it
// appears, wherever the keyboard is. Shows nothing itself, and is gone again after a while.
Item {
    id: root

    property string message: ""

    width: Theme.borderWidth
    height: Theme.borderWidth
    visible: false

    Accessible.role: Accessible.Notification
    Accessible.name: message

    function announce(text: string): void {
        root.visible = false;
        root.message = text;
        root.visible = text.length > 0;
        gone.restart();
    }

    Timer {
        id: gone

        interval: Theme.noticeDuration

        onTriggered: root.visible = false
    }
}
