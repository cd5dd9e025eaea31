import QtQuick
import QtQuick.Layouts

// The inside of an alert.
ColumnLayout {
    id: root

    required property string title
    required property string message
    required property string confirmTitle
    required property string cancelTitle
    required property bool destructive

    signal confirmed
    signal cancelled

    spacing: Theme.medium

    function takeFocus(): void {
        cancelButton.focus = true;
    }

    TitleText {
        Layout.fillWidth: true
        text: root.title
    }

    BodyText {
        Layout.fillWidth: true
        color: Theme.secondaryText
        text: root.message
    }

    RowLayout {
        Layout.fillWidth: true
        Layout.topMargin: Theme.small
        spacing: Theme.small

        Item {
            Layout.fillWidth: true
        }

        ActionButton {
            id: cancelButton

            focus: true
            text: root.cancelTitle

            onClicked: root.cancelled()
        }

        // A title with a long name in it is cut off, not the button.
        DestructiveButton {
            Layout.fillWidth: true
            Layout.maximumWidth: implicitWidth
            prominent: true
            text: root.confirmTitle
            visible: root.destructive && root.confirmTitle.length > 0

            onClicked: root.confirmed()
        }

        PrimaryButton {
            Layout.fillWidth: true
            Layout.maximumWidth: implicitWidth
            text: root.confirmTitle
            visible: !root.destructive && root.confirmTitle.length > 0

            onClicked: root.confirmed()
        }
    }
}
