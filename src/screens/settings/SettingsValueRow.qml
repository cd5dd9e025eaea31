import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One labelled value, spoken as a whole.
RowLayout {
    id: root

    required property string title
    required property string value

    Layout.fillWidth: true
    spacing: Theme.normal

    Accessible.role: Accessible.StaticText
    Accessible.name: title + ": " + value

    PlainText {
        Layout.fillWidth: true
        text: root.title

        Accessible.ignored: true
    }

    PlainText {
        Layout.alignment: Qt.AlignTop
        color: Theme.secondaryText
        text: root.value
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }
}
