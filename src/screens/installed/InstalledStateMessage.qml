import QtQuick
import Quillmere.Components
import Quillmere.Installed

// Why there is no installed package to list, and what can be done about it.
StateMessage {
    id: root

    required property InstalledPackagesViewModel viewModel

    readonly property int screenState: viewModel.state
    readonly property bool canScanAgain: viewModel.accessProblemText.length > 0
    readonly property bool accessNeeded: screenState === InstalledPackagesViewModel.NeedsAccess
    readonly property bool failed: screenState === InstalledPackagesViewModel.ScanFailed
    readonly property bool nothingInstalled: screenState === InstalledPackagesViewModel.NothingInstalled

    // The search was emptied: the next one may begin.
    signal searchCleared

    note: viewModel.accessProblemText
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
        visible: root.accessNeeded

        onClicked: root.viewModel.selectPrefixRequested()
    }

    ActionButton {
        text: "Browse Catalog Instead"
        visible: root.accessNeeded

        onClicked: root.viewModel.browseCatalogRequested()
    }

    PrimaryButton {
        focus: visible
        text: "Scan Read-Only Inventory"
        visible: root.screenState === InstalledPackagesViewModel.NotScanned

        onClicked: root.viewModel.scanRequested()
    }

    PrimaryButton {
        focus: visible
        text: "Scan Again"
        visible: root.failed || root.nothingInstalled

        onClicked: root.viewModel.scanRequested()
    }

    ActionButton {
        text: "Check Prefix"
        visible: root.failed

        onClicked: root.viewModel.selectPrefixRequested()
    }

    ActionButton {
        text: "Browse Catalog"
        visible: root.nothingInstalled

        onClicked: root.viewModel.browseCatalogRequested()
    }

    ActionButton {
        enabled: root.viewModel.search.searchText.length > 0
        focus: visible
        text: "Clear Search"
        visible: root.screenState === InstalledPackagesViewModel.NoMatch

        onClicked: {
            root.viewModel.search.clear();
            root.searchCleared();
        }
    }
}
