import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Shared

// A page outside the program. Where there is no browser, the address is shown instead.
ColumnLayout {
    id: root

    required property string text
    required property url page

    property string symbolName: "arrow.up.right.square"
    property bool failed: false
    // Whether the keyboard begins here.
    property bool initialFocus: false

    spacing: Theme.small

    ActionButton {
        focus: root.initialFocus
        help: "Opens " + root.page + " in the browser"
        textColor: Theme.accent
        symbolName: root.symbolName
        text: root.text

        Accessible.role: Accessible.Link

        onClicked: root.failed = !ExternalLinks.open(root.page)
    }

    BodyText {
        Layout.fillWidth: true
        color: Theme.secondaryText
        text: "No browser opened. The page is at"
        visible: root.failed
    }

    CodeBlock {
        Layout.fillWidth: true
        text: root.page
        visible: root.failed
    }
}
