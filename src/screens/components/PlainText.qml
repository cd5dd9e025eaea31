import QtQuick
import Quillmere.Components

// Text that is shown as it is: never markup, whatever a package or a command wrote into it.
Text {
    color: Theme.text
    font.pixelSize: Theme.bodySize
    textFormat: Text.PlainText
    wrapMode: Text.Wrap

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
