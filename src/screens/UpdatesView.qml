import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Screens

ScreenPage {
    id: root

    required property UpdatesViewModel viewModel

    ScreenHeader {
        Layout.fillWidth: true
        symbolName: "arrow.triangle.2.circlepath"
        title: "Updates"
    }
}
