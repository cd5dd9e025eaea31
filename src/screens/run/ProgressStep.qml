import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One step of a run: its symbol tells its state even without colour.
ColumnLayout {
    id: root

    required property int index
    required property string title
    required property string stepState
    required property string tint

    readonly property bool complete: stepState === "complete"
    readonly property bool active: stepState === "active"
    readonly property bool failed: stepState === "failed"

    spacing: Theme.tiny

    Accessible.role: Accessible.ListItem
    Accessible.name: title + ", " + stepState

    RowLayout {
        spacing: Theme.small

        BusySymbol {
            name: "arrow.triangle.2.circlepath"
            color: Theme.tint(root.tint)
            visible: root.active
        }

        Symbol {
            name: root.complete ? "checkmark.circle.fill" : root.failed ? "xmark.octagon"
                : "circle"
            color: Theme.tint(root.tint)
            visible: !root.active
        }

        Hairline {
            Layout.fillWidth: true
            color: root.complete ? Theme.tint(root.tint) : Theme.hairline
            opacity: root.complete ? 0.5 : 1
            visible: root.index < 3
        }
    }

    CaptionText {
        Layout.fillWidth: true
        color: root.active || root.failed ? Theme.text : Theme.secondaryText
        font.weight: root.active ? Font.DemiBold : Font.Normal
        text: root.title

        Accessible.ignored: true
    }
}
