import QtQuick
import Quillmere.Components
import Quillmere.Screens

// What a cleanup would be about.
FocusScope {
    id: root

    required property CleanupGuidanceViewModel viewModel

    readonly property bool loaded: viewModel.state === CleanupGuidanceViewModel.Loaded

    Component.onCompleted: viewModel.appear()
    Component.onDestruction: if (viewModel) viewModel.disappear()

    Announcement {
        id: announcement
    }

    FocusScope {
        anchors.fill: parent
        focus: !root.loaded
        visible: !root.loaded

        CleanupState {
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.large, Theme.sheetWidth)
            viewModel: root.viewModel
        }
    }

    CleanupPage {
        anchors.fill: parent
        focus: root.loaded
        viewModel: root.viewModel
        visible: root.loaded
    }

    Connections {
        function onScanEnded(outcome: string): void {
            announcement.say(outcome);
        }

        target: root.viewModel
    }
}
