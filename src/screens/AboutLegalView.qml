import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Screens

ScreenPage {
    id: root

    ScreenHeader {
        Layout.fillWidth: true
        symbolName: "lightbulb"
        title: "Quillmere"
    }
}
