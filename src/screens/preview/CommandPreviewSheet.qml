import QtQuick
import QtQuick.Templates as T
import Quillmere.Components
import Quillmere.Preview

// A command before, while and after it runs. The model decides when the sheet is gone.
Sheet {
    id: root

    required property CommandPreviewSheetModel viewModel
    // What is shown of the run: a screen of its own, which the window brings.
    required property Component sessionPage

    property bool wide: false

    closePolicy: T.Popup.NoAutoClose
    sheetWidth: wide ? Theme.textWidth : Theme.sheetWidth + Theme.huge
    title: "Command Preview"

    contentItem: CommandPreviewPhases {
        focus: true
        sessionPage: root.sessionPage
        viewModel: root.viewModel
    }

    Alert {
        confirmTitle: root.viewModel.confirmTitle
        message: root.viewModel.confirmationMessage
        parent: root.parent
        shown: root.viewModel.confirmationPending
        title: root.viewModel.confirmationTitle

        onCancelled: root.viewModel.cancelConfirmation()
        onConfirmed: root.viewModel.confirmRun()
    }

    Alert {
        cancelTitle: "OK"
        message: root.viewModel.errorMessage
        parent: root.parent
        shown: root.viewModel.errorPending
        title: "Cannot Run Command"

        onCancelled: root.viewModel.dismissError()
    }
}
