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
    function takeFocus(): void {
        first.focus = true;
    }

    PrimaryButton {
        id: first

        text: "Fetch All"

        onClicked: root.viewModel.fetchAll()
    }

    ActionButton {
        text: "Fetch Formulae"

        onClicked: root.viewModel.fetchFormulae()
    }

    ActionButton {
        text: "Fetch Casks"

        onClicked: root.viewModel.fetchCasks()
    }

    ActionButton {
        enabled: root.viewModel.hasCachedCatalog
        text: "Load Cached All"

        onClicked: root.viewModel.loadCachedAll()
    }

    ActionButton {
        enabled: root.viewModel.hasCachedFormulae
        text: "Load Cached Formulae"

        onClicked: root.viewModel.loadCachedFormulae()
    }

    ActionButton {
        enabled: root.viewModel.hasCachedCasks
        text: "Load Cached Casks"

        onClicked: root.viewModel.loadCachedCasks()
    }
}
