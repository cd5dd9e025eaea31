import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Settings

// What the program has stored, and how to make it forget.
ColumnLayout {
    id: root

    required property SettingsViewModel viewModel

    spacing: Theme.normal

    // The button that was pressed may have nothing left to do: the keyboard goes on to the next.
    Connections {
        function onActionCompleted(): void {
            if (clearCache.focus && !clearCache.enabled)
                clearHistory.forceActiveFocus(Qt.TabFocusReason);
        }

        target: root.viewModel
    }

    SectionBlock {
        symbolName: "externaldrive"
        title: "Local Inventory Refresh"

        SettingsValueRow {
            title: "Last Scan"
            value: root.viewModel.lastScanText
        }
    }

    SectionBlock {
        symbolName: "books.vertical"
        title: "Catalog Refresh"

        SettingsValueRow {
            title: "Last Refresh"
            value: root.viewModel.lastRefreshText
        }

        BodyText {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: "Formula and cask metadata are cached locally after a successful refresh for offline browsing."
        }

        DestructiveButton {
            id: clearCache

            enabled: root.viewModel.canClearMetadataCache
            text: "Clear Metadata Cache"

            onClicked: root.viewModel.askClearCacheMarkers()
        }
    }

    SectionBlock {
        symbolName: "clock.arrow.circlepath"
        title: "Local Data"

        BodyText {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: "Command history is local to this Mac and includes copied commands plus Direct execution summaries when available."
        }

        SettingsValueRow {
            title: "Stored Records"
            value: root.viewModel.historyCountText
        }

        DestructiveButton {
            id: clearHistory

            text: "Clear Command History"

            onClicked: root.viewModel.askClearHistory()
        }

        Hairline {
            Layout.fillWidth: true
        }

        TitleText {
            Layout.fillWidth: true
            font.pixelSize: Theme.bodySize
            text: "Reset Onboarding"
        }

        SettingsValueRow {
            title: "Completed"
            value: root.viewModel.onboardingCompletedText
        }

        DestructiveButton {
            text: "Reset Onboarding"

            onClicked: root.viewModel.askResetOnboarding()
        }
    }
}
