import QtQuick
import Quillmere.App
import Quillmere.Components

// The folder chooser of the main window, and what is said of a folder that is no prefix.
Item {
    id: root

    required property PrefixSelectionWorkflow workflow

    Loader {
        id: chooser

        anchors.fill: parent
    }

    LazyLoader {
        anchors.fill: parent
        needed: root.workflow.isRefused

        Component.onCompleted: setSource("PrefixRefusalAlert.qml", {workflow: root.workflow})
    }

    // Loading it opens it; from then on it listens itself.
    Connections {
        function onChooserRequested(): void {
            if (chooser.status === Loader.Null)
                chooser.setSource("PrefixFolderChooser.qml", {workflow: root.workflow});
        }

        target: root.workflow
    }
}
