import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Screens

// The download cache, and the command that cleans up.
ColumnLayout {
    id: root

    required property CleanupGuidanceViewModel viewModel

    spacing: Theme.normal

    SectionBlock {
        symbolName: "externaldrive"
        title: "Cache"

        ValueRow {
            family: Theme.monospacedFamily
            label: "Location"
            value: root.viewModel.cachePath
            visible: value.length > 0
        }

        ValueRow {
            label: "Estimated size"
            value: root.viewModel.cacheSizeText
            visible: value.length > 0
        }

        BodyText {
            Layout.fillWidth: true
            text: root.viewModel.cacheText
            visible: text.length > 0
        }
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
