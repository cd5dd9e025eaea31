import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Screens

ScreenPage {
    id: root

    required property InstalledPackagesViewModel viewModel

    ScreenHeader {
        Layout.fillWidth: true
        symbolName: "shippingbox"
        title: "Installed"
    }
}
