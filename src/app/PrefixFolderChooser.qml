import QtQuick
import Quillmere.App
import Quillmere.Shared

// The folder chooser, in a file of its own because it is loaded when a folder is first asked for.
Item {
    id: root

    required property PrefixSelectionWorkflow workflow

    Component.onCompleted: chooser.open()

    HomebrewPrefixChooser {
        id: chooser

        currentFolder: root.workflow.startFolder

        onAccepted: root.workflow.choose(selectedFolder, currentFolder)
    }

    Connections {
        function onChooserRequested(): void {
            chooser.open();
        }

        target: root.workflow
    }
}
