import QtQuick
import Quillmere.Cleanup
import Quillmere.Components
import Quillmere.Shared

// What a cleanup would be about.
FocusScope {
    id: root

    required property CleanupGuidanceViewModel viewModel

    readonly property bool loaded: viewModel.phase === CleanupGuidanceViewModel.Loaded
    readonly property bool scanning: viewModel.phase === CleanupGuidanceViewModel.Loading

    Component.onCompleted: viewModel.appear()
    Component.onDestruction: if (viewModel) viewModel.disappear()

    Announcer {
        id: announcer
    }

    FocusScope {
        anchors.fill: parent
        focus: !root.loaded
        visible: !root.loaded

        CleanupStateMessage {
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.large, Theme.sheetWidth)
            viewModel: root.viewModel
            visible: !root.scanning
        }

        ScanProgress {
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.large, Theme.alertWidth)
            viewModel: root.viewModel
            visible: root.scanning
        }
    }

    CleanupPage {
        anchors.fill: parent
        focus: root.loaded
        viewModel: root.viewModel
        visible: root.loaded
    }

    Connections {
        function onAnnounced(text: string): void {
            announcer.announce(text);
        }

        target: root.viewModel
    }
}
