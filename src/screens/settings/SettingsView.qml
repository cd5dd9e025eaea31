import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Settings

// What the program remembers, and how to make it forget.
ScreenPage {
    id: root

    required property SettingsViewModel viewModel

    property bool usesFixedFrame: false
    readonly property size fixedFrame: Qt.size(Theme.sheetWidth + 2 * Theme.huge,
                                               Theme.sheetWidth + 2 * Theme.large)

    implicitWidth: usesFixedFrame ? fixedFrame.width : 0
    implicitHeight: usesFixedFrame ? fixedFrame.height : 0

    // The cache may have been changed without this program.
    Component.onCompleted: viewModel.recheckCache()

    ScreenHeader {
        Layout.fillWidth: true
        symbolName: "gearshape"
        title: "Settings"
    }

    SectionBlock {
        Layout.topMargin: Theme.small
        symbolName: "externaldrive"
        title: "Homebrew Prefix"

        BodyText {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: "Choose the Homebrew prefix Quillmere may inspect. Resetting this only changes Quillmere's saved selection."
        }

        HomebrewPrefixSelectionView {
            Layout.fillWidth: true
            viewModel: root.viewModel.prefixSelection
        }

        Hairline {
            Layout.fillWidth: true
        }

        DestructiveButton {
            text: "Reset Selected Prefix"

            onClicked: root.viewModel.askResetPrefix()
        }
    }

    SettingsDataSections {
        Layout.fillWidth: true
        viewModel: root.viewModel
    }

    SettingsInformation {
        Layout.fillWidth: true
    }

    Connections {
        function onActionCompleted(text: string): void {
            root.announce(text);
        }

        target: root.viewModel
    }

    Connections {
        function onReportChanged(): void {
            const selection = root.viewModel.prefixSelection;
            root.announce(selection.errorMessage || selection.verdict);
        }

        target: root.viewModel.prefixSelection
    }

    SettingsConfirmationAlert {
        parent: root
        viewModel: root.viewModel
    }
}
