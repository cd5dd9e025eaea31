import QtQuick
import Quillmere.App
import Quillmere.Components

// Asks before the window closes on a command that runs.
Alert {
    id: root

    required property QuitGuard quitGuard

    cancelTitle: quitGuard.stayTitle
    confirmTitle: quitGuard.quitTitle
    message: quitGuard.message
    shown: quitGuard.isAsking
    title: quitGuard.title

    onCancelled: quitGuard.stay()
    onConfirmed: quitGuard.quit()
}
