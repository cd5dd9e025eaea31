import QtQuick
import Quillmere.Components

// One line of output. Lines that are not standard output carry a mark beside their colour.
Rectangle {
    id: root

    required property int index
    required property string text
    required property string stream
    required property string marker
    required property bool selected

    readonly property bool isDiagnostic: stream === "diagnostic"
    readonly property bool isOutput: stream === "standardOutput"

    implicitHeight: line.implicitHeight + Theme.borderWidth
    color: selected ? Theme.selection : "transparent"

    Accessible.role: Accessible.ListItem
    Accessible.name: marker.length > 0 ? marker + " " + text : text
    Accessible.selectable: true
    Accessible.selected: selected

    // As in PackageRow.
    ListView.onReused: Accessible.ignored = false

    CaptionText {
        id: mark

        anchors.left: parent.left
        color: root.isDiagnostic ? Theme.blue : Theme.orange
        font.family: Theme.monospacedFamily
        font.weight: Font.DemiBold
        text: root.marker
        width: Theme.huge
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }

    CaptionText {
        id: line

        anchors.left: mark.right
        anchors.right: parent.right
        anchors.rightMargin: Theme.medium
        color: root.selected ? Theme.selectionText : root.isOutput ? Theme.text
             : Theme.secondaryText
        font.family: Theme.monospacedFamily
        text: root.text
        wrapMode: Text.WrapAnywhere
        // A log keeps its margin, whatever script a line begins with.
        horizontalAlignment: Text.AlignLeft

        Accessible.ignored: true
    }
}
