import QtQuick
import Quillmere.Components
import Quillmere.Updates

// What the Updates screen says in place of updates, and what can be done about it.
StateMessage {
    id: root

    required property UpdatesViewModel viewModel

    // Whether the keyboard begins here: not where there is a list as well.
    property bool initialFocus: true

    readonly property bool idle: viewModel.phase === UpdatesViewModel.Idle
    readonly property bool canScanAgain: viewModel.accessProblemText.length > 0
    readonly property bool accessNeeded: viewModel.phase === UpdatesViewModel.AccessNeeded
    readonly property bool loaded: viewModel.phase === UpdatesViewModel.Loaded

    note: idle ? viewModel.catalogFreshnessText : viewModel.accessProblemText
    symbolName: viewModel.symbolName
    text: viewModel.text
    title: viewModel.title

    PrimaryButton {
        focus: root.initialFocus && visible
        text: "Scan Again"
        visible: root.canScanAgain

        onClicked: root.viewModel.scanRequested()
    }

    PrimaryButton {
        focus: root.initialFocus && visible && prominent
        prominent: !root.canScanAgain
        text: "Select Homebrew Prefix"
        visible: root.accessNeeded || root.viewModel.needsPrefix

        onClicked: root.viewModel.selectPrefixRequested()
    }

    ActionButton {
        text: "Browse Catalog Instead"
        visible: root.accessNeeded

        onClicked: root.viewModel.browseCatalogRequested()
    }

    PrimaryButton {
        focus: root.initialFocus && visible && prominent
        prominent: !root.viewModel.needsPrefix
        text: root.viewModel.scanTitle
        visible: !root.accessNeeded

        onClicked: root.viewModel.scanRequested()
    }

    ActionButton {
        text: "Refresh Catalog"
        visible: root.idle

        onClicked: root.viewModel.browseCatalogRequested()
    }

    ActionButton {
        text: "Run brew update"
        visible: !root.accessNeeded

        onClicked: root.viewModel.previewUpdate()
    }

    ActionButton {
        text: "Refresh Catalog"
        visible: root.loaded

        onClicked: root.viewModel.browseCatalogRequested()
    }
}
