import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.History

// The commands that were copied or run, newest first, and a search in them.
FocusScope {
    id: root

    required property CommandHistoryViewModel viewModel

    readonly property bool empty: viewModel.state === CommandHistoryViewModel.Empty
    readonly property bool reading: viewModel.state === CommandHistoryViewModel.Reading
    readonly property bool listed: viewModel.state === CommandHistoryViewModel.Listed

    // Who comes back wants to see the history, not what was searched then.
    Component.onCompleted: viewModel.appear()

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.large
        spacing: Theme.normal
        visible: !root.empty && !root.reading

        ScreenHeader {
            Layout.alignment: Qt.AlignHCenter
            Layout.fillWidth: true
            Layout.maximumWidth: Theme.textWidth
            symbolName: "clock.arrow.circlepath"
            title: "History"

            DestructiveButton {
                symbolName: "trash"
                text: "Clear History"

                onClicked: root.viewModel.askClear()
            }
        }

        CommandHistorySearch {
            id: search

            Layout.alignment: Qt.AlignHCenter
            Layout.fillWidth: true
            Layout.maximumWidth: Theme.textWidth
            viewModel: root.viewModel

            onFinished: list.takeFocus()
        }

        Item {
            Layout.alignment: Qt.AlignHCenter
            Layout.fillHeight: true
            Layout.fillWidth: true
            Layout.maximumWidth: Theme.textWidth

            CommandHistoryList {
                id: list

                width: parent.width
                height: Math.min(parent.height, fullHeight)
                viewModel: root.viewModel
                visible: root.listed
            }

            StateMessage {
                anchors.centerIn: parent
                width: Math.min(parent.width, Theme.sheetWidth)
                symbolName: "magnifyingglass"
                text: "Try a different command, package, operation, or source screen search."
                title: "No History Matches"
                visible: !root.listed

                ActionButton {
                    text: "Clear Search"

                    onClicked: {
                        root.viewModel.clearSearch();
                        search.takeFocus();
                    }
                }
            }
        }
    }

    StateMessage {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.large, Theme.sheetWidth)
        symbolName: "clock.arrow.circlepath"
        text: "Commands you copy or run will appear here. History is stored locally and can be cleared anytime."
        title: "No Command History"
        visible: root.empty
    }

    Progress {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.large, Theme.alertWidth)
        title: "Reading the command history..."
        visible: root.reading
    }

    Shortcut {
        enabled: !root.empty && !root.reading
        sequence: "Ctrl+F"

        onActivated: search.takeFocus()
    }

    Announcer {
        id: announcer
    }

    Alert {
        confirmTitle: "Clear History"
        message: "Quillmere will remove locally stored copied-command and execution history records."
        parent: root
        shown: root.viewModel.showsClearConfirmation
        title: "Clear Command History?"

        onCancelled: root.viewModel.cancelClear()
        onConfirmed: {
            root.viewModel.confirmClear();
            announcer.announce("Command history cleared");
        }
    }
}
