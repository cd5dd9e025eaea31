import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Preview

// What the command is, what it may do, and the choice: copy, run, or neither.
SheetPage {
    id: root

    required property CommandPreviewSheetModel viewModel

    subtitle: "Review this command before copying or running it with the selected Homebrew prefix."
    symbolName: "terminal"
    title: "Command Preview"

    Component.onCompleted: copyButton.forceActiveFocus()

    // A key that is held down copies once.
    Keys.onReturnPressed: event => copy(event.isAutoRepeat)
    Keys.onEnterPressed: event => copy(event.isAutoRepeat)

    function copy(repeated: bool): void {
        if (!repeated)
            viewModel.copy();
    }

    actions: [
        CaptionText {
            Layout.fillWidth: true
            text: "Copy is always manual. Run uses Quillmere Direct policy."
        },
        ActionButton {
            text: "Cancel"

            onClicked: root.viewModel.close()
        },
        CopyButton {
            id: copyButton

            viewModel: root.viewModel
        },
        PrimaryButton {
            help: "Runs the command with the selected Homebrew prefix after applying Quillmere Direct safety policy."
            text: "Run Command"
            visible: root.viewModel.canRun

            onClicked: root.viewModel.run()
        }
    ]

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.small

        RowLayout {
            Layout.fillWidth: true
            Layout.preferredHeight: copied.implicitHeight

            PlainText {
                Layout.fillWidth: true
                font.weight: Font.DemiBold
                text: "Command text"
            }

            Notice {
                id: copied
            }
        }

        CodeBlock {
            Layout.fillWidth: true
            text: root.viewModel.commandText
        }

        CaptionText {
            Layout.fillWidth: true
            text: "This text can be selected, copied, or run from Quillmere Direct when policy allows."
        }
    }

    BodyText {
        Layout.fillWidth: true
        text: root.viewModel.explanation
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.normal

        LabelledValue {
            Layout.fillWidth: true
            Layout.preferredWidth: Theme.borderWidth
            label: "Operation"
            symbolName: "wrench.adjustable"
            value: root.viewModel.operationText
        }

        LabelledValue {
            Layout.fillWidth: true
            Layout.preferredWidth: Theme.borderWidth
            label: "Target"
            symbolName: "shippingbox"
            value: root.viewModel.targetText
        }

        LabelledValue {
            Layout.fillWidth: true
            Layout.preferredWidth: Theme.borderWidth
            label: "Risk Level"
            symbolName: "exclamationmark.shield"
            tint: Theme.riskTint(root.viewModel.riskLevel)
            value: root.viewModel.riskText
        }
    }

    PossibleEffects {
        Layout.fillWidth: true
        viewModel: root.viewModel
    }

    Card {
        Layout.fillWidth: true
        padding: Theme.medium
        spacing: Theme.tiny

        PlainText {
            Layout.fillWidth: true
            font.weight: Font.DemiBold
            text: root.viewModel.policyTitle
        }

        BodyText {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: root.viewModel.policyMessage
        }
    }

    Connections {
        function onCopied(): void {
            copied.show("Copied");
            root.announce("Command copied");
        }

        target: root.viewModel
    }
}
