pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.App
import Quillmere.Components
import Quillmere.Screens

// The main window's content: the sections on the left, the selected one on the right.
FocusScope {
    id: root

    required property ContentViewModel viewModel

    readonly property string section: viewModel.selectedSection

    Sidebar {
        id: sidebar

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.top: parent.top
        focus: true
        viewModel: root.viewModel
        width: Theme.sidebarWidth
    }

    // A screen lives while its section is selected.
    Item {
        anchors.bottom: parent.bottom
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: parent.top

        Repeater {
            model: root.section === "services" ? 1 : 0

            delegate: ServicesGuidanceView {
                anchors.fill: parent
                viewModel: root.viewModel.services
            }
        }

        Repeater {
            model: root.section === "history" ? 1 : 0

            delegate: CommandHistoryView {
                anchors.fill: parent
                viewModel: root.viewModel.history
            }
        }

        Repeater {
            model: root.section === "settings" ? 1 : 0

            delegate: SettingsView {
                anchors.fill: parent
                viewModel: root.viewModel.settings
            }
        }

        Repeater {
            model: root.viewModel.plannedText.length > 0 ? 1 : 0

            delegate: SectionPlaceholderView {
                anchors.fill: parent
                plan: root.viewModel.plannedText
                symbolName: root.viewModel.selectedSymbolName
                title: root.viewModel.selectedTitle

                onServicesWanted: root.viewModel.selectServices()
                onSettingsWanted: root.viewModel.selectSettings()
            }
        }
    }

    CommandPreviewHost {
        viewModel: root.viewModel
    }

    PrefixSelectionHost {
        workflow: root.viewModel.prefixSelection
    }
}
