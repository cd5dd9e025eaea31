pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.App
import Quillmere.Components

// The main window's content: the sections on the left, the selected one on the right.
FocusScope {
    id: root

    required property ContentViewModel viewModel

    // Back from a package, wherever the keyboard is.
    Keys.onPressed: event => {
        event.accepted = viewModel.details.current !== null
            && (event.key === Qt.Key_Escape || event.key === Qt.Key_Back
                || (event.key === Qt.Key_Left && event.modifiers === Qt.AltModifier));
        if (event.accepted)
            viewModel.details.back();
    }

    Sidebar {
        id: sidebar

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.top: parent.top
        focus: true
        viewModel: root.viewModel
        width: Theme.sidebarWidth
    }

    SectionScreen {
        id: screen

        anchors.bottom: parent.bottom
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: parent.top
        viewModel: root.viewModel
    }

    CommandPreviewHost {
        commands: root.viewModel.commands
    }

    // What it says stands in the middle of the window.
    PrefixSelectionHost {
        anchors.fill: parent
        workflow: root.viewModel.prefixSelection
    }

    LazyLoader {
        anchors.fill: parent
        needed: root.viewModel.showsOnboarding

        Component.onCompleted: setSource("OnboardingHost.qml", {viewModel: root.viewModel})
    }
}
