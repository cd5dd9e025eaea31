pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.App
import Quillmere.Screens

// The settings in a window of their own, made when they are first asked for.
Item {
    id: root

    required property SettingsViewModel viewModel

    property bool wanted: false

    signal raised

    function open(): void {
        wanted = true;
        raised();
    }

    Repeater {
        model: root.wanted ? 1 : 0

        delegate: Item {
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
                    viewModel: root.viewModel
                }

                Shortcut {
                    sequences: ["Ctrl+W", "Esc"]

                    onActivated: window.close()
                }

                Connections {
                    function onRaised(): void {
                        window.show();
                        window.raise();
                        window.requestActivate();
                    }

                    target: root
                }
            }
        }
    }
}
