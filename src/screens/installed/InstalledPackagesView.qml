pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Installed
import Quillmere.Shared

// What is installed in the selected prefix, as far as a scan searchable.
FocusScope {
    id: root

    required property InstalledPackagesViewModel viewModel

    // Read once, so that all bindings switch together and the keyboard's focus is kept.
    readonly property int screenState: viewModel.state
    readonly property bool listed: screenState === InstalledPackagesViewModel.Listed
    readonly property bool scanning: screenState === InstalledPackagesViewModel.Scanning
    readonly property bool searchable: screenState >= InstalledPackagesViewModel.NoMatch
    readonly property bool headerVisible: screenState === InstalledPackagesViewModel.Scanning
                                   || screenState >= InstalledPackagesViewModel.NoMatch

    ColumnLayout {
        x: (root.width - width) / 2
        y: Theme.large
        width: Math.min(root.width - 2 * Theme.large, Theme.textWidth)
        height: root.height - 2 * Theme.large
        spacing: Theme.normal

        ScreenHeader {
            Layout.fillWidth: true
            freshness: root.viewModel.freshnessText
            warning: root.viewModel.rescanWarning
            symbolName: "shippingbox"
            title: "Local inventory"
            visible: root.headerVisible

            ActionButton {
                text: "Scan Again"

                onClicked: root.viewModel.scanRequested()
            }
        }

        PackageSearchBar {
            id: searchBar

            Layout.fillWidth: true
            enabled: root.searchable
            placeholder: "Search installed packages"
            search: root.viewModel.search
            visible: root.headerVisible

            onDownPressed: area.takeFocus()
        }

        PackageListArea {
            id: area

            Layout.fillHeight: true
            Layout.fillWidth: true
            accessibleSummary: root.viewModel.accessibleSummary
            focus: true
            listed: root.listed
            model: root.viewModel.packages
            summary: root.viewModel.summary

            onOpened: row => root.viewModel.open(row)

            delegate: InstalledPackageRow {
                width: ListView.view.width
            }

            InstalledStateMessage {
                anchors.centerIn: parent
                width: Math.min(parent.width, Theme.sheetWidth)
                viewModel: root.viewModel
                visible: !root.listed && !root.scanning

                onSearchCleared: searchBar.takeFocus()
            }

            ScanProgress {
                anchors.centerIn: parent
                width: Math.min(parent.width, Theme.alertWidth)
                viewModel: root.viewModel
                visible: root.scanning
            }
        }
    }

    Announcer {
        id: announcer
    }

    Connections {
        function onAnnounced(text: string): void {
            announcer.announce(text);
        }

        target: root.viewModel
    }
}
