pragma ComponentBehavior: Bound

import QtQuick

// Gets ready, on the engine's own thread, what the first frame does without, so that nothing has to
// wait for its files when it is first shown.
Repeater {
    id: root

    readonly property list<string> views: ["FormulaCatalogView", "InstalledPackagesView",
        "PackageDetailView", "UpdatesView", "CommandPreviewSheet", "CleanupGuidanceView",
        "CommandHistoryView", "SettingsView", "ServicesGuidanceView", "AboutLegalView",
        "DashboardView"]

    property bool begun: false

    model: begun ? views : []

    delegate: Item {
        required property string modelData

        readonly property Component view: Qt.createComponent("../Screens/" + modelData + ".qml",
                                                             Component.Asynchronous)
    }
}
