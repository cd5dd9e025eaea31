import QtQuick
import Quillmere.App
import Quillmere.Settings

// The window of the settings, in a file of its own because most starts never load it.
Item {
    id: root

    required property SettingsWindow host

    ThemedWindow {
        id: window

        width: view.fixedFrame.width
        height: view.fixedFrame.height
        maximumHeight: height
        maximumWidth: width
        minimumHeight: height
        minimumWidth: width
        title: "Quillmere Settings"
        visible: true

        SettingsView {
            id: view

            anchors.fill: parent
            focus: true
            usesFixedFrame: true
            viewModel: root.host.viewModel
        }

        Shortcut {
            sequences: ["Ctrl+W", "Esc"]

            onActivated: window.close()
        }

        Connections {
            function onRaiseRequested(): void {
                window.show();
                window.raise();
                window.requestActivate();
            }

            target: root.host
        }
    }
}
