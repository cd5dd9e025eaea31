import QtQuick
import Quillmere.App
import Quillmere.Components
import Quillmere.Screens

// The folder chooser of the main window, and what is said of a folder that is no prefix.
Item {
    id: root

    required property PrefixSelectionWorkflow workflow

    HomebrewPrefixChooser {
        id: chooser

        currentFolder: root.workflow.startFolder

        onAccepted: root.workflow.choose(selectedFolder, currentFolder)
    }

    Alert {
        confirmTitle: "Select Another Folder"
        destructive: false
        message: root.workflow.refusalText
        shown: root.workflow.isRefused
        title: root.workflow.refusalTitle

        onCancelled: root.workflow.acknowledge()
        onConfirmed: root.workflow.begin()
    }

    Connections {
        function onChooserWanted(): void {
            chooser.open();
        }

        target: root.workflow
    }
}
