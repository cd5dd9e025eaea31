pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Updates

// The packages that look outdated and those that want a look.
FocusScope {
    id: root

    required property UpdatesViewModel viewModel

    ColumnLayout {
        x: (parent.width - width) / 2
        y: Theme.large
        width: Math.min(parent.width - 2 * Theme.large, Theme.textWidth)
        // The spacer at the end adds one spacing too many.
        height: parent.height - 2 * Theme.large + spacing
        spacing: Theme.normal

        ScreenHeader {
            Layout.fillWidth: true
            warning: root.viewModel.rescanWarning
            symbolName: "arrow.triangle.2.circlepath"
            title: "Updates"

            ActionButton {
                focus: list.count === 0
                text: "Scan Again"

                onClicked: root.viewModel.scanRequested()
            }

            ActionButton {
                text: "Run brew update"

                onClicked: root.viewModel.previewUpdate()
            }

            ActionButton {
                text: "Browse Catalog"

                onClicked: root.viewModel.browseCatalogRequested()
            }
        }

        UpdatesSummary {
            Layout.fillWidth: true
            viewModel: root.viewModel
        }

        CaptionText {
            Layout.fillWidth: true
            color: Theme.red
            text: root.viewModel.upgradeProblem
            visible: text.length > 0
        }

        UpdatesStateMessage {
            Layout.fillWidth: true
            Layout.topMargin: list.count > 0 ? 0 : Theme.huge
            initialFocus: false
            viewModel: root.viewModel
            visible: root.viewModel.updateCount === 0
        }

        Card {
            Layout.fillHeight: true
            Layout.fillWidth: true
            Layout.minimumHeight: 0
            Layout.preferredHeight: list.contentHeight + 2 * padding
            Layout.maximumHeight: Layout.preferredHeight
            padding: Theme.tiny
            visible: list.count > 0

            ListView {
                id: list

                Layout.fillHeight: true
                Layout.fillWidth: true
                activeFocusOnTab: true
                boundsBehavior: Flickable.StopAtBounds
                cacheBuffer: 0
                clip: true
                focus: count > 0
                highlightMoveDuration: 0
                interactive: wheel.dragEnabled
                keyNavigationEnabled: true
                model: root.viewModel.packages

                Accessible.role: Accessible.List
                Accessible.name: "Packages"

                // Where the keyboard comes in.
                onCountChanged: if (list.currentIndex < 0) list.currentIndex = 0

                delegate: PackageUpdateRow {
                    width: ListView.view.width

                    onUpgradeRequested: root.viewModel.previewUpgrade(index)
                }

                ScrollBar.vertical: SlimScrollBar {
                }

                ScrollWheel {
                    id: wheel

                    flickable: list
                }
            }
        }

        // Room that a short list leaves.
        Item {
            Layout.fillHeight: true
            Layout.preferredHeight: 0
        }
    }
}
