import Quillmere.Components
import Quillmere.Shared

// That a scan goes on, how far it has come, and how it is stopped.
Progress {
    id: root

    required property LocalInventoryViewModel viewModel

    details: viewModel.progressText
    fraction: viewModel.progressFraction
    title: viewModel.title

    ActionButton {
        focus: visible
        help: "Stops the scan and shows again what was shown before."
        text: "Cancel"

        onClicked: root.viewModel.cancelScanRequested()
    }
}
