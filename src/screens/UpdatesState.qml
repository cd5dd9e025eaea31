import QtQuick
import Quillmere.Components
import Quillmere.Screens

// What the Updates screen says in place of updates, and what can be done about it.
StateMessage {
    id: root

    required property UpdatesViewModel viewModel

    readonly property bool idle: viewModel.state === UpdatesViewModel.Idle
    readonly property bool accessNeeded: viewModel.state === UpdatesViewModel.AccessNeeded
    readonly property bool loading: viewModel.state === UpdatesViewModel.Loading
    readonly property bool loaded: viewModel.state === UpdatesViewModel.Loaded

    note: idle ? viewModel.catalogFreshnessText : ""
    symbolName: viewModel.stateSymbolName
    text: viewModel.stateText
    title: viewModel.stateTitle

    PrimaryButton {
        focus: root.accessNeeded
        text: "Select Homebrew Prefix"
        visible: root.accessNeeded

        onClicked: root.viewModel.selectPrefixWanted()
    }

    PlainButton {
        text: "Browse Catalog Instead"
        visible: root.accessNeeded

        onClicked: root.viewModel.browseCatalogWanted()
    }

    PrimaryButton {
        focus: visible
        text: root.viewModel.scanTitle
        visible: !root.accessNeeded && !root.loading

        onClicked: root.viewModel.scanWanted()
    }

    PlainButton {
        text: "Refresh Catalog"
        visible: root.idle

        onClicked: root.viewModel.browseCatalogWanted()
    }

    PlainButton {
        text: "Run brew update"
        visible: !root.accessNeeded && !root.loading

        onClicked: root.viewModel.previewUpdate()
    }

    PlainButton {
        text: "Refresh Catalog"
        visible: root.loaded

        onClicked: root.viewModel.browseCatalogWanted()
    }

    PlainButton {
        focus: root.loading
        help: "Stops the scan and shows again what was shown before."
        text: "Cancel"
        visible: root.loading

        onClicked: root.viewModel.cancelScanWanted()
    }
}
