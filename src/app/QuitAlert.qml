import QtQuick
import Quillmere.App
import Quillmere.Components

// Asks before the window closes on a command that runs.
Alert {
    id: root

    required property QuitGuard quitGuard

    cancelTitle: quitGuard.cancelTitle
    confirmTitle: quitGuard.confirmTitle
    message: quitGuard.message
    shown: quitGuard.confirmationPending
    title: quitGuard.title

    onCancelled: quitGuard.cancelQuit()
    onConfirmed: quitGuard.confirmQuit()
}
