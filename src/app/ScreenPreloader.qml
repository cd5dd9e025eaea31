pragma ComponentBehavior: Bound

import QtQuick

// Gets ready, on the engine's own thread, what the first frame does without, so that nothing has to
// wait for its files when it is first shown.
Repeater {
    id: root

    readonly property list<string> files: ["Browse/FormulaCatalogView",
        "Installed/InstalledPackagesView", "Package/PackageDetailView", "Updates/UpdatesView",
        "Cleanup/CleanupGuidanceView", "History/CommandHistoryView",
        "Settings/SettingsView", "Services/ServicesGuidanceView", "About/AboutLegalView",
        "App/CommandSheet", "App/PrefixRefusalAlert", "App/QuitAlert"]

    property bool running: false

    model: running ? files : []

    delegate: Item {
        required property string modelData

        readonly property Component file: Qt.createComponent("../" + modelData + ".qml",
                                                             Component.Asynchronous)
    }
}
