pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Preview

// The moment between the answer and the run, while the prefix's brew is looked for.
SheetPage {
    id: root

    required property CommandPreviewSheetModel viewModel

    property bool showsDiagnostics: false

    subtitle: viewModel.commandText
    symbolName: "terminal"
    title: "Starting Direct Command"

    actions: [
        ActionButton {
            text: root.showsDiagnostics ? "Hide Startup Diagnostics" : "Show Startup Diagnostics"

            onClicked: root.showsDiagnostics = !root.showsDiagnostics
        },
        Item {
            Layout.fillWidth: true
        },
        ActionButton {
            focus: true
            text: "Cancel"

            onClicked: root.viewModel.cancelStartup()
        }
    ]

    RowLayout {
        spacing: Theme.small

        Symbol {
            name: "checkmark.circle.fill"
            color: Theme.green
        }

        PlainText {
            text: "Command reviewed"
        }
    }

    RowLayout {
        spacing: Theme.small

        BusySymbol {
            name: "circle.dotted"
            color: Theme.blue
        }

        PlainText {
            text: "Resolving Homebrew executable"
        }
    }

    Card {
        Layout.fillWidth: true
        padding: Theme.medium
        spacing: Theme.tiny

        PlainText {
            font.weight: Font.DemiBold
            text: "Preparing Homebrew"
        }

        BodyText {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: "Resolving the selected prefix and validating bin/brew."
        }
    }

    Card {
        Layout.fillWidth: true
        color: Theme.well
        padding: Theme.medium
        spacing: Theme.tiny
        visible: root.showsDiagnostics

        Repeater {
            model: root.viewModel.startupDiagnostics

            delegate: CaptionText {
                required property string modelData

                Layout.fillWidth: true
                font.family: Theme.monospacedFamily
                text: modelData
            }
        }
    }
}
