import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Run

// A run: how it stands, what Homebrew did so far, and all that it printed. In a low window the
// output takes the summary's place.
SheetPage {
    id: root

    required property DirectExecutionSessionViewModel viewModel
    required property bool canClose

    readonly property bool low: height < Theme.sheetWidth

    signal closed

    filled: viewModel.showsRawOutput
    // Output that arrives scrolls; it does not make the sheet grow under the pointer.
    implicitHeight: viewModel.showsRawOutput ? Theme.outputHeight : Theme.sessionHeight
    note: viewModel.durationText
    noteSymbolName: "timer"
    subtitle: viewModel.statusText
    symbolName: viewModel.statusSymbol
    tint: viewModel.statusTint
    title: viewModel.commandText
    titleIsCode: true

    actions: SessionActions {
        Layout.fillWidth: true
        canClose: root.canClose
        focus: true
        viewModel: root.viewModel

        onClosed: root.closed()
        onCopyRequested: output.copy()
    }

    filler: RawOutputView {
        id: output

        anchors.fill: parent
        viewModel: root.viewModel
    }

    ProgressSteps {
        Layout.fillWidth: true
        viewModel: root.viewModel
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.small
        visible: root.viewModel.cancellationPending

        Symbol {
            name: "stop.circle"
            Layout.alignment: Qt.AlignTop
            color: Theme.orange
        }

        BodyText {
            Layout.fillWidth: true
            color: Theme.orange
            text: root.viewModel.cancellationText
        }
    }

    RunOutcomeBlock {
        Layout.fillWidth: true
        viewModel: root.viewModel
        visible: root.viewModel.hasOutcome && !(root.low && root.viewModel.showsRawOutput)
    }

    OutputSummary {
        Layout.fillWidth: true
        viewModel: root.viewModel
        visible: !(root.low && root.viewModel.showsRawOutput)
    }

    Connections {
        function onAnnounced(text: string): void {
            root.announce(text);
        }

        target: root.viewModel
    }
}
