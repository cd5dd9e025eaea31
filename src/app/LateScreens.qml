pragma ComponentBehavior: Bound

import QtQuick

// Gets ready, on the engine's own thread, what the first frame does without, so that nothing has to
// wait for its files when it is first shown.
Repeater {
    id: root

    readonly property list<string> files: ["Screens/FormulaCatalogView",
        "Screens/InstalledPackagesView", "Screens/PackageDetailView", "Screens/UpdatesView",
        "Screens/CleanupGuidanceView", "Screens/CommandHistoryView",
        "Screens/SettingsView", "Screens/ServicesGuidanceView", "Screens/AboutLegalView",
        "App/CommandSheet", "App/PrefixRefusalAlert", "App/QuitAlert"]

    property bool begun: false

    model: begun ? files : []

    delegate: Item {
        required property string modelData

        readonly property Component file: Qt.createComponent("../" + modelData + ".qml",
                                                             Component.Asynchronous)
    }
}
