import QtQuick
import Quillmere.Components
import Quillmere.Preview

// Copies the command, and shows for a moment that it did.
ActionButton {
    id: root

    required property CommandPreviewSheetModel viewModel

    help: "Copies the command text to the clipboard and records it in local History."
    symbolName: done.running ? "checkmark.circle" : "doc.on.doc"
    text: "Copy Command"

    onClicked: viewModel.copy()

    Timer {
        id: done

        interval: Theme.noticeDuration
    }

    Connections {
        function onCopied(): void {
            done.restart();
        }

        target: root.viewModel
    }
}
