import QtQuick
import Quillmere.Cleanup
import Quillmere.Components

// What the Cleanup screen says in place of its guidance, and what can be done about it.
StateMessage {
    id: root

    required property CleanupGuidanceViewModel viewModel

    readonly property bool idle: viewModel.phase === CleanupGuidanceViewModel.Idle
    readonly property bool canScanAgain: viewModel.accessProblemText.length > 0
    readonly property bool accessNeeded: viewModel.phase === CleanupGuidanceViewModel.AccessNeeded
    readonly property bool failed: viewModel.phase === CleanupGuidanceViewModel.Failed

    note: idle ? viewModel.inventoryFreshnessText : viewModel.accessProblemText
    symbolName: viewModel.symbolName
    text: viewModel.text
    title: viewModel.title

    PrimaryButton {
        focus: visible
        text: "Scan Again"
        visible: root.canScanAgain

        onClicked: root.viewModel.scanRequested()
    }

    PrimaryButton {
        focus: visible && prominent
        prominent: !root.canScanAgain
        text: "Select Homebrew Prefix"
        visible: root.accessNeeded || root.viewModel.needsPrefix

        onClicked: root.viewModel.selectPrefixRequested()
    }

    PrimaryButton {
        focus: visible && prominent
        prominent: !root.viewModel.needsPrefix
        text: "Scan Read-Only Inventory"
        visible: root.idle

        onClicked: root.viewModel.scanRequested()
    }

    PrimaryButton {
        focus: visible
        text: "Scan Again"
        visible: root.failed

        onClicked: root.viewModel.scanRequested()
    }

    ActionButton {
        text: "Check Prefix"
        visible: root.failed

        onClicked: root.viewModel.selectPrefixRequested()
    }
}
