import QtQuick
import QtQuick.Layouts

// One labelled value with its symbol; tinted where the value is a judgement. Spoken as a whole.
RowLayout {
    id: root

    required property string label
    required property string value
    required property string symbolName

    property string tint: ""

    spacing: Theme.small

    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    Symbol {
        name: root.symbolName
        Layout.alignment: Qt.AlignTop
    }

    ColumnLayout {
        spacing: Theme.tiny / 2

        CaptionText {
            Layout.fillWidth: true
            elide: Text.ElideRight
            text: root.label
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }

        PlainText {
            Layout.fillWidth: true
            elide: Text.ElideRight
            font.weight: Font.Medium
            text: root.value
            visible: root.tint.length === 0
            wrapMode: Text.NoWrap

            Accessible.ignored: true
        }

        Pill {
            spoken: false
            text: root.value
            tint: root.tint
            visible: root.tint.length > 0
        }
    }
}
