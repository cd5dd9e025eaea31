import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.History

// The search in the history and how much it found, which is said when the typing rests and not at
// every letter.
RowLayout {
    id: root

    required property CommandHistoryViewModel viewModel

    signal finished

    spacing: Theme.medium

    function takeFocus(): void {
        field.forceActiveFocus();
        field.selectAll();
    }

    LiveSearchField {
        id: field

        Layout.fillWidth: true
        Layout.maximumWidth: Theme.alertWidth
        prompt: "Search command history"
        text: root.viewModel.searchText

        onFinished: root.finished()
        onSearched: text => root.viewModel.searchText = text
    }

    CaptionText {
        Layout.fillWidth: true
        text: root.viewModel.matchesText
        visible: text.length > 0 && root.viewModel.state === CommandHistoryViewModel.Listed
    }

    Connections {
        function onSearchTextChanged(): void {
            rest.restart();
        }

        target: root.viewModel
    }

    Timer {
        id: rest

        interval: Theme.typingPause

        onTriggered: announcer.announce(root.viewModel.matchesText)
    }

    Announcer {
        id: announcer
    }
}
