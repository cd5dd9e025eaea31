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
        color: Theme.secondaryText
        text: root.value

        Accessible.ignored: true
    }
}
