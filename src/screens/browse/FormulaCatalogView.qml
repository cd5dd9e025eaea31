pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Browse
import Quillmere.Components
import Quillmere.Shared

// The catalog: where it comes from, a search in it, and what the search found.
FocusScope {
    id: root

    required property FormulaCatalogViewModel viewModel

    // Read once, so that all bindings switch together and the keyboard's focus is kept.
    readonly property int screenState: viewModel.state
    readonly property bool listed: screenState === FormulaCatalogViewModel.Listed
    readonly property bool loading: screenState === FormulaCatalogViewModel.Loading
    readonly property bool searchable: screenState >= FormulaCatalogViewModel.Filtering
    readonly property bool waiting: loading || screenState === FormulaCatalogViewModel.Filtering
    readonly property bool compact: column.width < actions.implicitWidth

    // A catalog has to come from somewhere before there is a list.
    Component.onCompleted: if (!searchable && !compact) actions.takeFocus()

    ColumnLayout {
        id: column

        x: (root.width - width) / 2
        y: Theme.large
        width: Math.min(root.width - 2 * Theme.large, Theme.textWidth)
        height: root.height - 2 * Theme.large
        spacing: Theme.normal

        ScreenHeader {
            Layout.fillWidth: true
            freshness: root.viewModel.freshnessText
            symbolName: "magnifyingglass"
            title: "Browse Catalog"

            CatalogMenu {
                viewModel: root.viewModel
                visible: root.compact
            }
        }

        CatalogActions {
            id: actions

            viewModel: root.viewModel
            visible: !root.compact
        }

        Banner {
            Layout.fillWidth: true
            text: root.viewModel.fetchFailureText
            visible: text.length > 0

            ActionButton {
                text: "Try Again"

                onClicked: root.viewModel.tryAgain()
            }
        }

        PackageSearchBar {
            id: searchBar

            Layout.fillWidth: true
            enabled: root.searchable
            placeholder: "Search formulae and casks"
            search: root.viewModel.search

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
            summary: root.compact ? root.viewModel.shortSummary : root.viewModel.longSummary

            onOpened: row => root.viewModel.open(row)

            delegate: CatalogPackageRow {
                width: ListView.view.width
            }

            CatalogStateMessage {
                anchors.centerIn: parent
                width: Math.min(parent.width, Theme.sheetWidth)
                compact: root.compact
                viewModel: root.viewModel
                visible: !root.listed && !root.waiting

                onSearchCleared: searchBar.takeFocus()
            }

            Progress {
                anchors.centerIn: parent
                width: Math.min(parent.width, Theme.alertWidth)
                details: root.viewModel.progressText
                fraction: root.viewModel.progressFraction
                title: root.viewModel.title
                visible: root.waiting

                ActionButton {
                    focus: visible
                    text: "Cancel"
                    visible: root.loading

                    onClicked: root.viewModel.cancelFetch()
                }
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
