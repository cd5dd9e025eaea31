import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// A topic of a package that is a list of names, or a sentence that says why there are none.
SectionBlock {
    id: root

    required property string text
    required property list<string> names
    // What is in view, in the coordinates of this block.
    required property real viewTop
    required property real viewHeight

    property bool clickable: false
    // Why what was chosen did not open.
    property string problem: ""

    signal chosen(string name)

    BodyText {
        Layout.fillWidth: true
        color: Theme.secondaryText
        text: root.text
        visible: text.length > 0
    }

    TagFlow {
        Layout.fillWidth: true
        accessibleName: root.title
        items: root.names
        clickable: root.clickable
        viewHeight: root.viewHeight
        viewTop: root.viewTop - root.padding - y
        visible: items.length > 0

        onChosen: name => root.chosen(name)
    }

    CaptionText {
        Layout.fillWidth: true
        color: Theme.red
        text: root.problem
        visible: text.length > 0
    }
}
