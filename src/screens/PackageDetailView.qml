import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Screens

ScreenPage {
    id: root

    required property PackageDetailViewModel viewModel

    ScreenHeader {
        Layout.fillWidth: true
        symbolName: "shippingbox"
        title: "Package"
    }
}
