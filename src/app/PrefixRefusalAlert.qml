import Quillmere.App
import Quillmere.Components

// Says that a folder is no prefix, in a file of its own because it is loaded when there is one.
Alert {
    id: root

    required property PrefixSelectionWorkflow workflow

    confirmTitle: "Select Another Folder"
    destructive: false
    message: workflow.refusalText
    shown: workflow.isRefused
    title: workflow.refusalTitle

    onCancelled: workflow.acknowledgeRefusal()
    onConfirmed: workflow.requestChooser()
}
