import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Run

// What can be done with a run. The keyboard begins where a second Return, meant for the question
// before, does no harm, and goes to the button that closes when the run has ended.
FocusScope {
    id: root

    required property DirectExecutionSessionViewModel viewModel
    required property bool canClose

    readonly property bool running: viewModel.isRunning

    signal closed
    signal copyRequested

    implicitHeight: row.implicitHeight

    onRunningChanged: if (!running && activeFocus) close.forceActiveFocus()

    RowLayout {
        id: row

        anchors.fill: parent
        spacing: Theme.small

        ActionButton {
            id: toggle

            accessibleName: root.viewModel.rawOutputToggleAccessibleName
            focus: true
            text: root.viewModel.rawOutputToggleTitle

            onClicked: {
                forceActiveFocus();
                root.viewModel.showsRawOutput = !root.viewModel.showsRawOutput;
            }
        }

        ActionButton {
            enabled: !root.viewModel.rawOutputIsEmpty
            help: "Copies the selected lines, or all of them where none is selected."
            symbolName: "doc.on.doc"
            text: "Copy Output"
            visible: root.viewModel.showsRawOutput

            onClicked: root.copyRequested()
        }

        Item {
            Layout.fillWidth: true
        }

        ActionButton {
            id: cancel

            enabled: !root.viewModel.cancellationPending
            text: root.viewModel.cancelTitle
            visible: root.running

            onClicked: {
                toggle.forceActiveFocus();
                root.viewModel.cancel();
            }
        }

        // Keeps its place while it does not show, so that the second click of a double click on
        // the button that started the run does not cancel it.
        Item {
            implicitWidth: close.implicitWidth
            implicitHeight: close.implicitHeight

            PrimaryButton {
                id: close

                text: "Close"
                visible: root.canClose

                onClicked: root.closed()
            }
        }
    }
}
