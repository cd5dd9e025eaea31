pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.App
import Quillmere.Screens

// The screen of the selected section, and over it the package that is open in it. A screen lives
// while its section is selected, so that it is as it was when a package is closed.
FocusScope {
    id: root

    required property ContentViewModel viewModel

    readonly property PackageDetailViewModel detail: viewModel.details.current
    readonly property string section: viewModel.selectedSection

    component Section: Repeater {
        required property string name

        model: root.section === name ? 1 : 0

        // The screen before may still be there and have the keyboard.
        onItemAdded: (index, item) => item.focus = true
    }

    FocusScope {
        anchors.fill: parent
        focus: root.detail === null
        visible: root.detail === null

        Section {
            name: "dashboard"

            delegate: DashboardView {
                anchors.fill: parent
                viewModel: root.viewModel.dashboard
            }
        }

        Section {
            name: "installed"

            delegate: InstalledPackagesView {
                anchors.fill: parent
                viewModel: root.viewModel.installed
            }
        }

        Section {
            name: "browse"

            delegate: FormulaCatalogView {
                anchors.fill: parent
                viewModel: root.viewModel.browse
            }
        }

        Section {
            name: "updates"

            delegate: UpdatesView {
                anchors.fill: parent
                viewModel: root.viewModel.updates
            }
        }

        Section {
            name: "cleanup"

            delegate: CleanupGuidanceView {
                anchors.fill: parent
                viewModel: root.viewModel.cleanup
            }
        }

        Section {
            name: "services"

            delegate: ServicesGuidanceView {
                anchors.fill: parent
                viewModel: root.viewModel.services
            }
        }

        Section {
            name: "history"

            delegate: CommandHistoryView {
                anchors.fill: parent
                viewModel: root.viewModel.history
            }
        }

        Section {
            name: "settings"

            delegate: SettingsView {
                anchors.fill: parent
                viewModel: root.viewModel.settings
            }
        }

        Section {
            name: "aboutLegal"

            delegate: AboutLegalView {
                anchors.fill: parent
            }
        }
    }

    Repeater {
        model: root.detail ? [root.detail] : []

        delegate: PackageDetailView {
            required property PackageDetailViewModel modelData

            anchors.fill: parent
            focus: true
            viewModel: modelData
        }
    }
}
