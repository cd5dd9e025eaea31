import QtQuick

// One question with its consequences, one button that agrees, one that does not. Escape does not
// agree, and the keyboard starts on the harmless button.
Sheet {
    id: root

    property string message: ""
    property string confirmTitle: ""
    property string cancelTitle: "Cancel"
    property bool destructive: true

    signal confirmed
    signal cancelled

    sheetWidth: Theme.alertWidth

    // The keyboard starts on the cancel button each time.
    onAboutToShow: (contentItem as AlertContent).takeFocus()
    onRejected: cancelled()
    onAccepted: confirmed()

    contentItem: AlertContent {
        cancelTitle: root.cancelTitle
        confirmTitle: root.confirmTitle
        destructive: root.destructive
        message: root.message
        title: root.title

        onCancelled: root.reject()
        onConfirmed: root.accept()
    }
}
