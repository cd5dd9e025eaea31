import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Screens

ScreenPage {
    id: root

    required property CleanupGuidanceViewModel viewModel

    ScreenHeader {
        Layout.fillWidth: true
        symbolName: "sparkles"
        title: "Cleanup Guidance"
    }
}
