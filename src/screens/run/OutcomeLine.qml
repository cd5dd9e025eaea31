import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One line of an outcome beside its symbol.
RowLayout {
    id: root

    required property string symbolName
    required property string text
    required property string tint

    property bool prominent: false
    property string spokenPrefix: ""

    spacing: Theme.small

    Symbol {
        name: root.symbolName
        Layout.alignment: Qt.AlignTop
        color: Theme.tint(root.tint)
    }

    BodyText {
        Layout.fillWidth: true
        font.weight: root.prominent ? Font.DemiBold : Font.Normal
        text: root.text

        Accessible.name: root.spokenPrefix + root.text
    }
}
