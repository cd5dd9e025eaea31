import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Dashboard
import Quillmere.Shared

// What is known, how fresh it is, and what this build may do.
ScreenPage {
    id: root

    required property DashboardViewModel viewModel

    ProductHeader {
        Layout.bottomMargin: Theme.small
        Layout.fillWidth: true
        badge: "Direct build: approved commands can run"
        tagline: "Homebrew, made visible without taking over your tools."
        text: "Browse public metadata, inspect local packages, and run approved Homebrew commands from your selected prefix."
    }

    GridLayout {
        Layout.fillWidth: true
        columnSpacing: Theme.normal
        columns: 2
        rowSpacing: Theme.normal

        DashboardCard {
            detail: root.viewModel.catalogDetail
            parts: root.viewModel.hasCatalogAge ? root.viewModel.catalogGaugeParts : 0
            partsLeft: root.viewModel.catalogGaugePartsLeft
            symbolName: "books.vertical"
            tint: root.viewModel.catalogTint
            title: "Catalog"
            value: root.viewModel.catalogValue
        }

        DashboardCard {
            detail: root.viewModel.inventoryDetail
            parts: root.viewModel.hasInventoryAge ? root.viewModel.inventoryGaugeParts : 0
            partsLeft: root.viewModel.inventoryGaugePartsLeft
            symbolName: "externaldrive"
            tint: root.viewModel.inventoryTint
            title: "Local Homebrew"
            value: root.viewModel.inventoryValue
            warning: root.viewModel.accessProblemText
        }

        DashboardCard {
            detail: "Quillmere Direct can run approved commands from the selected Homebrew prefix. Mutating commands require confirmation; uninstall remains preview-only."
            symbolName: "terminal"
            title: "Command Safety"
            value: root.viewModel.commandSafetyValue
        }

        DashboardCard {
            detail: "Selected prefix metadata, catalog cache files, scan markers, and command history stay on this Mac."
            symbolName: "lock.shield"
            title: "Privacy"
            value: "Local-first"
        }
    }

    PrimaryButton {
        Layout.topMargin: Theme.tiny
        focus: true
        symbolName: "shippingbox"
        text: "View Installed"

        onClicked: root.viewModel.viewInstalled()
    }
}
