import QtQuick
import QtQuick.Templates as T

// Something that wants an answer before the window goes on. Escape closes it unless the owner says
// otherwise; the keyboard stays inside and goes back to where it was.
T.Dialog {
    id: root

    property int sheetWidth: Theme.sheetWidth
    property bool shown: false
    readonly property int room: parent ? parent.height - 2 * Theme.large : 0

    anchors.centerIn: parent
    width: Math.min(sheetWidth, parent ? parent.width - 2 * Theme.large : sheetWidth)
    height: Math.min(implicitHeight, room)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape
    focus: true
    modal: true
    padding: Theme.large

    onShownChanged: shown ? open() : close()

    background: Rectangle {
        color: Theme.window
        radius: Theme.largeRadius

        border.color: Theme.hairline
        border.width: Theme.borderWidth
    }

    T.Overlay.modal: Rectangle {
        color: Theme.scrim
    }

    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.animationDuration
        }
    }
}
