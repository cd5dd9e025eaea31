import QtQuick
import QtQuick.Layouts
import Quillmere.Cleanup
import Quillmere.Components

// The guidance of a loaded inventory.
ScreenPage {
    id: root

    required property CleanupGuidanceViewModel viewModel

    ScreenHeader {
        Layout.fillWidth: true
        freshness: root.viewModel.inventoryFreshnessText
        subtitle: "Quillmere Direct can prepare `brew cleanup` and run it only after stronger confirmation. Review cleanup carefully because Homebrew may delete cache files and old versions."
        warning: root.viewModel.rescanWarning
        symbolName: "sparkles"
        title: "Cleanup Guidance"

        ActionButton {
            focus: true
            text: "Scan Again"

            onClicked: root.viewModel.scanRequested()
        }
    }

    SectionBlock {
        Layout.topMargin: Theme.small
        symbolName: "clock.arrow.circlepath"
        title: "What Cleanup Does"

        BodyText {
            Layout.fillWidth: true
            text: "`brew cleanup` asks Homebrew to remove old downloads, cached files, and package versions Homebrew considers no longer needed."
        }

        BodyText {
            Layout.fillWidth: true
            text: "Review the command before copying or running it. Continue only if you are comfortable with Homebrew removing files."
        }
    }

    OldVersions {
        viewHeight: root.height
        viewModel: root.viewModel
        viewTop: root.viewTop - y
    }

    CleanupCache {
        viewModel: root.viewModel
    }

    SectionBlock {
        symbolName: "terminal"
        title: "Command Preview"

        BodyText {
            Layout.fillWidth: true
            text: "Preview the exact cleanup command before copying or running it. Quillmere Direct records completed executions in local History."
        }

        PrimaryButton {
            accessibleName: "Preview cleanup command"
            help: "Opens a command preview where Quillmere Direct can run cleanup after stronger confirmation."
            symbolName: "sparkles"
            text: "Preview Cleanup"

            onClicked: root.viewModel.previewCleanup()
        }
    }
}
