pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Screens

// The commands that were copied or run, newest first.
FocusScope {
    id: root

    required property CommandHistoryViewModel viewModel

    readonly property bool listed: viewModel.state === CommandHistoryViewModel.Listed

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.large
        spacing: Theme.normal
        visible: root.listed

        ScreenHeader {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignHCenter
            Layout.maximumWidth: Theme.textWidth
            symbolName: "clock.arrow.circlepath"
            title: "History"

            DestructiveButton {
                symbolName: "trash"
                text: "Clear History"

                onClicked: root.viewModel.askClear()
            }
        }

        Card {
            Layout.alignment: Qt.AlignHCenter
            Layout.fillHeight: true
            Layout.fillWidth: true
            Layout.maximumHeight: list.contentHeight + 2 * padding
            Layout.maximumWidth: Theme.textWidth
            padding: Theme.tiny

            ListView {
                id: list

                Layout.fillHeight: true
                Layout.fillWidth: true
                activeFocusOnTab: true
                boundsBehavior: Flickable.StopAtBounds
                clip: true
                focus: true
                interactive: wheel.touched
                model: root.viewModel.records

                Accessible.role: Accessible.List
                Accessible.name: "Command history"

                delegate: CommandHistoryRow {
                    width: ListView.view.width
                }

                ScrollBar.vertical: SlimScrollBar {
                }

                ScrollWheel {
                    id: wheel

                    flickable: list
                }
            }
        }

        Item {
            Layout.fillHeight: true
        }
    }

    StateMessage {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.large, Theme.sheetWidth)
        symbolName: "clock.arrow.circlepath"
        text: "Commands you copy or run will appear here. History is stored locally and can be cleared anytime."
        title: "No Command History"
        visible: !root.listed
    }

    Alert {
        confirmTitle: "Clear History"
        message: "Quillmere will remove locally stored copied-command and execution history records."
        parent: root
        shown: root.viewModel.showsClearConfirmation
        title: "Clear Command History?"

        onCancelled: root.viewModel.cancelClear()
        onConfirmed: root.viewModel.confirmClear()
    }
}
