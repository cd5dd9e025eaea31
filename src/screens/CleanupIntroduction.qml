import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Screens

// What a cleanup does, and the head of the list of old versions.
ColumnLayout {
    id: root

    required property CleanupGuidanceViewModel viewModel

    readonly property Item listHead: head

    spacing: Theme.normal

    ScreenHeader {
        Layout.fillWidth: true
        freshness: root.viewModel.inventoryFreshnessText
        subtitle: "Quillmere Direct can prepare `brew cleanup` and run it only after stronger confirmation. Review cleanup carefully because Homebrew may delete cache files and old versions."
        symbolName: "sparkles"
        title: "Cleanup Guidance"

        PlainButton {
            text: "Scan Again"

            onClicked: root.viewModel.scanWanted()
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

    SectionBlock {
        id: head

        border.color: "transparent"
        color: "transparent"
        symbolName: "shippingbox"
        title: "Old Versions"

        BodyText {
            Layout.fillWidth: true
            text: root.viewModel.oldVersionsText
        }

        ShareBar {
            Layout.fillWidth: true
            counts: [root.viewModel.oldVersionCount, root.viewModel.currentVersionCount]
            tints: ["orange", "neutral"]
            visible: root.viewModel.oldVersionCount > 0
        }
    }
}
