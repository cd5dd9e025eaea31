import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Services

// Explains Homebrew services and offers the one command that only looks at them.
ScreenPage {
    id: root

    required property ServicesGuidanceViewModel viewModel

    ScreenHeader {
        Layout.fillWidth: true
        subtitle: "Quillmere Direct can explain Homebrew services and run the read-only services list command. It does not start, stop, or restart services."
        symbolName: "switch.2"
        title: "Services Guidance"
    }

    SectionBlock {
        Layout.topMargin: Theme.small
        symbolName: "gearshape.2"
        title: "What Services Are"

        BodyText {
            Layout.fillWidth: true
            text: "Homebrew services are launchd-managed background processes for supported formulae, such as databases or local servers."
        }

        BodyText {
            Layout.fillWidth: true
            text: "Starting, stopping, or restarting services can change what runs in the background. Quillmere does not provide those controls in v1."
        }
    }

    SectionBlock {
        symbolName: "info.circle"
        title: "Live Status"

        BodyText {
            Layout.fillWidth: true
            text: "Use the command preview below to run `brew services list` from the selected prefix. Service start, stop, and restart controls are intentionally not included."
        }
    }

    SectionBlock {
        symbolName: "terminal"
        title: "Command Preview"

        BodyText {
            Layout.fillWidth: true
            text: "Preview `brew services list` before copying or running it. Quillmere Direct records completed executions in local History."
        }

        PrimaryButton {
            accessibleName: "Preview services list command"
            focus: true
            help: "Opens a command preview where Quillmere Direct can run the services list command."
            symbolName: "list.bullet.rectangle"
            text: "Preview Services List"

            onClicked: root.viewModel.previewServicesList()
        }
    }
}
