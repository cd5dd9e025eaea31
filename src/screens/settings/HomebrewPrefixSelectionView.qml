import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Settings
import Quillmere.Shared

// The prefix that may be inspected, how to choose it, and what was found in it.
ColumnLayout {
    id: root

    required property HomebrewPrefixSelectionViewModel viewModel

    // To have chosen nothing yet is no error.
    readonly property bool invalid: viewModel.hasSelection || viewModel.hasReport

    spacing: Theme.medium

    Component.onCompleted: viewModel.recheck()

    TitleText {
        Layout.fillWidth: true
        font.pixelSize: Theme.bodySize
        text: "Homebrew Prefix"

        // The section around says so already.
        Accessible.ignored: true
    }

    BodyText {
        Layout.fillWidth: true
        text: "Select your Homebrew prefix to enable read-only local inspection. Apple Silicon Homebrew installs usually live at `/opt/homebrew`."
    }

    CodeBlock {
        Layout.fillWidth: true
        accessibleName: "Selected prefix " + root.viewModel.selectedPath
        text: root.viewModel.selectedPath
        visible: root.viewModel.hasSelection
    }

    RowLayout {
        spacing: Theme.small

        PrimaryButton {
            focus: true
            symbolName: "externaldrive"
            text: root.viewModel.chooseTitle

            onClicked: chooser.open()
        }

        ActionButton {
            enabled: root.viewModel.hasSelection
            text: "Recheck"

            onClicked: root.viewModel.recheck()
        }

        DestructiveButton {
            enabled: root.viewModel.hasSelection
            text: "Reset"

            onClicked: root.viewModel.reset()
        }
    }

    RowLayout {
        spacing: Theme.small
        visible: root.viewModel.errorMessage.length > 0

        Symbol {
            name: root.invalid ? "exclamationmark.triangle" : "info.circle"
            Layout.alignment: Qt.AlignTop
            color: root.invalid ? Theme.red : Theme.secondaryText
        }

        BodyText {
            Layout.fillWidth: true
            color: root.invalid ? Theme.red : Theme.secondaryText
            text: root.viewModel.errorMessage
        }
    }

    HomebrewPrefixReport {
        Layout.fillWidth: true
        viewModel: root.viewModel
        visible: root.viewModel.hasReport
    }

    HomebrewPrefixChooser {
        id: chooser

        currentFolder: root.viewModel.startFolder

        onAccepted: root.viewModel.chooseFolder(selectedFolder, currentFolder)
    }
}
