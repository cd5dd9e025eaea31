import QtQuick
import Quillmere.Browse
import Quillmere.Components

// Why no package is listed, and what can be done about it.
StateMessage {
    id: root

    required property FormulaCatalogViewModel viewModel

    // Whether the screen's own row of actions has no room.
    required property bool compact

    readonly property bool searchable: viewModel.state >= FormulaCatalogViewModel.Filtering

    // The search was emptied: the next one may begin.
    signal searchCleared

    symbolName: viewModel.symbolName
    text: viewModel.text
    title: viewModel.title

    PrimaryButton {
        focus: visible
        text: "Fetch All"
        visible: root.compact && !root.searchable

        onClicked: root.viewModel.fetchAll()
    }

    ActionButton {
        text: "Load Cached All"
        visible: root.compact && !root.searchable && root.viewModel.hasCachedCatalog

        onClicked: root.viewModel.loadCachedAll()
    }

    ActionButton {
        enabled: root.viewModel.search.searchText.length > 0
        focus: visible
        text: "Clear Search"
        visible: root.viewModel.state === FormulaCatalogViewModel.NoMatch

        onClicked: {
            root.viewModel.search.clear();
            root.searchCleared();
        }
    }
}
