import QtQuick
import Quillmere.Components
import Quillmere.Shared
import Quillmere.Updates

// Which installed packages look outdated.
FocusScope {
    id: root

    required property UpdatesViewModel viewModel

    readonly property bool loaded: viewModel.phase === UpdatesViewModel.Loaded
    readonly property bool scanning: viewModel.phase === UpdatesViewModel.Loading

    Announcer {
        id: announcer
    }

    FocusScope {
        anchors.fill: parent
        focus: !root.loaded
        visible: !root.loaded

        UpdatesStateMessage {
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

    UpdatesList {
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
