import QtQuick.Controls.Basic
import QtQuick.Templates as T
import Quillmere.Components

// A window in the program's colours, those included that Qt draws by itself: the folder chooser,
// where the desktop has none.
ApplicationWindow {
    color: Theme.window

    // Qt gives the keyboard back where a sheet closes, but not where it closes under another window,
    // such as the folder chooser: then it is given back here.
    onActiveChanged: if (active && !T.Overlay.overlay.visible) contentItem.focus = true

    palette.base: Theme.card
    palette.button: Theme.controlBorder
    palette.buttonText: Theme.text
    palette.dark: Theme.controlBorder
    palette.highlight: Theme.selection
    palette.highlightedText: Theme.selectionText
    palette.light: Theme.neutralFill
    palette.mid: Theme.pressed
    palette.midlight: Theme.hover
    palette.text: Theme.text
    palette.window: Theme.window
    palette.windowText: Theme.text
}
