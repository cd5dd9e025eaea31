import QtQuick
import Quillmere.Components

// Stands where a section will be, says so, and leads to what works already.
FocusScope {
    id: root

    required property string title
    required property string symbolName
    required property string plan

    signal servicesWanted
    signal settingsWanted

    StateMessage {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.large, Theme.sheetWidth)
        symbolName: root.symbolName
        text: "This section is not built yet. " + root.plan
        title: root.title

        PrimaryButton {
            symbolName: "gearshape"
            text: "Open Settings"

            onClicked: root.settingsWanted()
        }

        PlainButton {
            symbolName: "switch.2"
            text: "Open Services"

            onClicked: root.servicesWanted()
        }
    }
}
