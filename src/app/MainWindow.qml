pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.App
import Quillmere.Components

ThemedWindow {
    id: root

    required property ContentViewModel content
    required property WindowGeometry geometry

    width: geometry.size.width
    height: geometry.size.height
    minimumWidth: geometry.minimumSize.width
    minimumHeight: geometry.minimumSize.height
    title: "Quillmere"
    visibility: geometry.maximized ? Window.Maximized : Window.Windowed
    visible: true

    onFrameSwapped: screenPreloader.running = true
    onClosing: event => {
        event.accepted = content.quitGuard.requestQuit();
        if (event.accepted) {
            if (visibility !== Window.Minimized)
                geometry.save(Qt.size(width, height), visibility !== Window.Windowed);
            Qt.quit();
        }
    }

    ContentView {
        anchors.fill: parent
        focus: true
        viewModel: root.content
    }

    Pill {
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.margins: Theme.normal
        symbolName: "timer"
        text: root.content.quitGuard.waitingText
        tint: "orange"
        visible: text.length > 0
    }

    Repeater {
        model: root.content.sections

        delegate: Item {
            id: section

            required property int index

            Shortcut {
                sequence: "Ctrl+" + (section.index + 1)

                onActivated: root.content.selectIndex(section.index)
            }
        }
    }

    Shortcut {
        sequence: "Ctrl+,"

        onActivated: settings.open()
    }

    Shortcut {
        sequence: "Ctrl+W"

        onActivated: root.close()
    }

    // From every window, and while a sheet is open.
    Shortcut {
        context: Qt.ApplicationShortcut
        sequence: "Ctrl+Q"

        onActivated: root.close()
    }

    LazyLoader {
        anchors.fill: parent
        needed: root.content.quitGuard.confirmationPending

        Component.onCompleted: setSource("QuitAlert.qml", {quitGuard: root.content.quitGuard})
    }

    Connections {
        function onQuitAllowed(): void {
            root.close();
        }

        target: root.content.quitGuard
    }

    SettingsWindow {
        id: settings

        viewModel: root.content.settingsWindow
    }

    ScreenPreloader {
        id: screenPreloader
    }
}
