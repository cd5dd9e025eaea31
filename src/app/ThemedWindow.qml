import QtQuick.Controls.Basic
import Quillmere.Components

// A window in the program's colours, those included that Qt draws by itself: the folder chooser,
// where the desktop has none.
ApplicationWindow {
    color: Theme.window

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
