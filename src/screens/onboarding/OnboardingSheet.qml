import QtQuick.Templates as T
import Quillmere.Components

// The first thing that a new user sees. It goes only when one of its two ways in was taken.
Sheet {
    id: root

    signal finished
    signal selectPrefixRequested

    closePolicy: T.Popup.NoAutoClose
    sheetWidth: Theme.wideSheetWidth
    title: "Welcome to Quillmere"

    contentItem: OnboardingPage {
        onFinished: root.finished()
        onSelectPrefixRequested: root.selectPrefixRequested()
    }
}
