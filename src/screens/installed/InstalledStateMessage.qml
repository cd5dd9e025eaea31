import QtQuick
import Quillmere.Components
import Quillmere.Installed

// Why there is no installed package to list, and what can be done about it.
StateMessage {
    id: root

    required property InstalledPackagesViewModel viewModel

    readonly property int phase: viewModel.state
    readonly property bool accessNeeded: phase === InstalledPackagesViewModel.NeedsAccess
    readonly property bool failed: phase === InstalledPackagesViewModel.CouldNotScan
    readonly property bool nothingFound: phase === InstalledPackagesViewModel.NothingFound

    // The search was emptied: the next one may begin.
    signal searchCleared

    symbolName: viewModel.symbolName
    text: viewModel.text
    title: viewModel.title

    PrimaryButton {
        focus: visible
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
        text: "Scan Read-Only Inventory"
        visible: root.phase === InstalledPackagesViewModel.NotScanned

        onClicked: root.viewModel.scanWanted()
    }

    PrimaryButton {
        focus: visible
        text: "Scan Again"
        visible: root.failed || root.nothingFound

        onClicked: root.viewModel.scanWanted()
    }

    PlainButton {
        text: "Check Prefix"
        visible: root.failed

        onClicked: root.viewModel.selectPrefixWanted()
    }

    PlainButton {
        text: "Browse Catalog"
        visible: root.nothingFound

        onClicked: root.viewModel.browseCatalogWanted()
    }

    PlainButton {
        enabled: root.viewModel.search.searchText.length > 0
        focus: visible
        text: "Clear Search"
        visible: root.phase === InstalledPackagesViewModel.NoMatch

        onClicked: {
            root.viewModel.search.clear();
            root.searchCleared();
        }
    }
}
