import QtQuick
import Quillmere.Components
import Quillmere.Screens

// Why there is no installed package to list, and what can be done about it.
StateMessage {
    id: root

    required property InstalledPackagesViewModel viewModel

    readonly property int phase: viewModel.state
    readonly property bool accessNeeded: phase === InstalledPackagesViewModel.AccessNeeded
    readonly property bool failed: phase === InstalledPackagesViewModel.Failed
    readonly property bool nothingFound: phase === InstalledPackagesViewModel.NothingFound

    // The search was emptied: the next one may begin.
    signal searchCleared

    symbolName: viewModel.symbolName
    text: viewModel.text
    title: viewModel.title

    PrimaryButton {
        text: "Select Homebrew Prefix"
        visible: root.accessNeeded

        onClicked: root.viewModel.selectPrefix()
    }

    PlainButton {
        text: "Browse Catalog Instead"
        visible: root.accessNeeded

        onClicked: root.viewModel.browseCatalog()
    }

    PrimaryButton {
        text: "Scan Read-Only Inventory"
        visible: root.phase === InstalledPackagesViewModel.NotScanned

        onClicked: root.viewModel.scan()
    }

    PrimaryButton {
        text: "Scan Again"
        visible: root.failed || root.nothingFound

        onClicked: root.viewModel.scan()
    }

    PlainButton {
        text: "Check Prefix"
        visible: root.failed

        onClicked: root.viewModel.selectPrefix()
    }

    PlainButton {
        text: "Browse Catalog"
        visible: root.nothingFound

        onClicked: root.viewModel.browseCatalog()
    }

    PlainButton {
        enabled: root.viewModel.searchText.length > 0
        text: "Clear Search"
        visible: root.phase === InstalledPackagesViewModel.NoMatch

        onClicked: {
            root.viewModel.clearSearch();
            root.searchCleared();
        }
    }
}
