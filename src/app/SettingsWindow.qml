import QtQuick
import Quillmere.Settings

// The settings in a window of their own, made when they are first asked for.
Loader {
    id: root

    required property SettingsViewModel viewModel

    signal raiseRequested

    function open(): void {
        if (status === Loader.Null)
            setSource("SettingsWindowContent.qml", {host: root});
        raiseRequested();
    }
}
