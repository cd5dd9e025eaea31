import QtQuick
import Quillmere.Components
import Quillmere.Screens

// What the Cleanup screen says in place of its guidance, and what can be done about it.
StateMessage {
    id: root

    required property CleanupGuidanceViewModel viewModel

    readonly property bool idle: viewModel.state === CleanupGuidanceViewModel.Idle
    readonly property bool accessNeeded: viewModel.state === CleanupGuidanceViewModel.AccessNeeded
    readonly property bool loading: viewModel.state === CleanupGuidanceViewModel.Loading
    readonly property bool failed: viewModel.state === CleanupGuidanceViewModel.Failed

    note: idle ? viewModel.inventoryFreshnessText : ""
    symbolName: viewModel.stateSymbolName
    text: viewModel.stateText
    title: viewModel.stateTitle

    PrimaryButton {
        focus: root.accessNeeded
        text: "Select Homebrew Prefix"
        visible: root.accessNeeded

        onClicked: root.viewModel.selectPrefixWanted()
    }

    PrimaryButton {
        focus: root.idle
        text: "Scan Read-Only Inventory"
        visible: root.idle

        onClicked: root.viewModel.scanWanted()
    }

    PrimaryButton {
        focus: root.failed
        text: "Scan Again"
        visible: root.failed

        onClicked: root.viewModel.scanWanted()
    }

    PlainButton {
        text: "Check Prefix"
        visible: root.failed

        onClicked: root.viewModel.selectPrefixWanted()
    }

    PlainButton {
        focus: root.loading
        help: "Stops the scan and shows again what was shown before."
        text: "Cancel"
        visible: root.loading

        onClicked: root.viewModel.cancelScanWanted()
    }
}
