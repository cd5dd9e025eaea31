import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Screens

ScreenPage {
    id: root

    required property FormulaCatalogViewModel viewModel

    ScreenHeader {
        Layout.fillWidth: true
        symbolName: "magnifyingglass"
        title: "Browse Catalog"
    }
}
