pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Installed
import Quillmere.Shared

// What is installed in the selected prefix, as far as a scan found.
FocusScope {
    id: root

    required property InstalledPackagesViewModel viewModel

    // Read once, so that all bindings switch together and the keyboard's focus is kept.
    readonly property int phase: viewModel.state
    readonly property bool listed: phase === InstalledPackagesViewModel.Listed
    readonly property bool scanning: phase === InstalledPackagesViewModel.Scanning
    readonly property bool found: phase >= InstalledPackagesViewModel.NoMatch
    readonly property bool headed: phase === InstalledPackagesViewModel.Scanning
                                   || phase >= InstalledPackagesViewModel.NoMatch

    ColumnLayout {
        x: (root.width - width) / 2
        y: Theme.large
        width: Math.min(root.width - 2 * Theme.large, Theme.textWidth)
        height: root.height - 2 * Theme.large
        spacing: Theme.normal

        ScreenHeader {
            Layout.fillWidth: true
            freshness: root.viewModel.freshnessText
            notice: root.viewModel.overtakenText
            symbolName: "shippingbox"
            title: "Local inventory"
            visible: root.headed

            PlainButton {
                text: "Scan Again"

                onClicked: root.viewModel.scanWanted()
            }
        }

        PackageSearchBar {
            id: searchBar

            Layout.fillWidth: true
            enabled: root.found
            placeholder: "Search installed packages"
            search: root.viewModel.search
            visible: root.headed

            onLeftDownwards: area.enter()
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

                onSearchCleared: searchBar.edit()
            }

            ScanProgress {
                anchors.centerIn: parent
                width: Math.min(parent.width, Theme.alertWidth)
                viewModel: root.viewModel
                visible: root.scanning
            }
        }
    }

    Announcement {
        id: announcement
    }

    Connections {
        function onAnnounced(text: string): void {
            announcement.say(text);
        }

        target: root.viewModel
    }
}
