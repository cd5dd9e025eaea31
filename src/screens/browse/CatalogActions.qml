import QtQuick
import QtQuick.Layouts
import Quillmere.Browse
import Quillmere.Components

// Where the catalog may come from, in a window that has room for all of it.
RowLayout {
    id: root

    required property FormulaCatalogViewModel viewModel

    spacing: Theme.small

    // The keyboard begins here.
    function begin(): void {
        first.focus = true;
    }

    PrimaryButton {
        id: first

        text: "Fetch All"

        onClicked: root.viewModel.fetchAll()
    }

    PlainButton {
        text: "Fetch Formulae"

        onClicked: root.viewModel.fetchFormulae()
    }

    PlainButton {
        text: "Fetch Casks"

        onClicked: root.viewModel.fetchCasks()
    }

    PlainButton {
        enabled: root.viewModel.hasCachedCatalog
        text: "Load Cached All"

        onClicked: root.viewModel.loadCachedAll()
    }

    PlainButton {
        enabled: root.viewModel.hasCachedFormulae
        text: "Load Cached Formulae"

        onClicked: root.viewModel.loadCachedFormulae()
    }

    PlainButton {
        enabled: root.viewModel.hasCachedCasks
        text: "Load Cached Casks"

        onClicked: root.viewModel.loadCachedCasks()
    }
}
