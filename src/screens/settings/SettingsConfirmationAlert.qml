import QtQuick
import Quillmere.Components
import Quillmere.Settings

// Asks before the settings take something away.
Alert {
    id: root

    required property SettingsViewModel viewModel

    confirmTitle: viewModel.confirmTitle
    message: viewModel.confirmationMessage
    shown: viewModel.confirmationPending
    title: viewModel.confirmationTitle

    onCancelled: viewModel.cancel()
    onConfirmed: viewModel.confirm()
}
