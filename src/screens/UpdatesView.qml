import QtQuick
import Quillmere.Components
import Quillmere.Screens

// Which installed packages look outdated.
FocusScope {
    id: root

    required property UpdatesViewModel viewModel

    readonly property bool loaded: viewModel.state === UpdatesViewModel.Loaded

    Announcement {
        id: announcement
    }

    FocusScope {
        anchors.fill: parent
        focus: !root.loaded
        visible: !root.loaded

        UpdatesState {
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.large, Theme.sheetWidth)
            viewModel: root.viewModel
        }
    }

    UpdatesList {
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
