import QtQuick
import Quillmere.Browse
import Quillmere.Components

// The same as `CatalogActions` in one button, for a narrow window.
PrimaryButton {
    id: root

    required property FormulaCatalogViewModel viewModel

    help: "Opens a menu to fetch the catalog or to load what is cached."
    symbolName: "chevron.down"
    text: "Load"

    Accessible.role: Accessible.ButtonMenu

    onClicked: menu.opened ? menu.close() : menu.open()

    PopupMenu {
        id: menu

        x: root.width - width
        y: root.height + Theme.tiny

        PopupMenuItem {
            text: "Catalog"

            onTriggered: root.viewModel.fetchAll()
        }

        PopupMenuItem {
            text: "Formulae"

            onTriggered: root.viewModel.fetchFormulae()
        }

        PopupMenuItem {
            text: "Casks"

            onTriggered: root.viewModel.fetchCasks()
        }

        PopupMenuItem {
            enabled: root.viewModel.hasCachedCatalog
            text: "Cached Catalog"

            onTriggered: root.viewModel.loadCachedAll()
        }

        PopupMenuItem {
            enabled: root.viewModel.hasCachedFormulae
            text: "Cached Formulae"

            onTriggered: root.viewModel.loadCachedFormulae()
        }

        PopupMenuItem {
            enabled: root.viewModel.hasCachedCasks
            text: "Cached Casks"

            onTriggered: root.viewModel.loadCachedCasks()
        }
    }
}
