import QtQuick
import QtQuick.Layouts

// One labelled value that can be selected and copied; grey where there is none to copy.
RowLayout {
    id: root

    required property string label
    required property string value

    property bool copyable: true
    property string family: Theme.family
    default property alias actions: actionRow.data

    Layout.fillWidth: true
    spacing: Theme.medium

    PlainText {
        Layout.alignment: Qt.AlignTop
        Layout.preferredWidth: Theme.labelWidth
        color: Theme.secondaryText
        text: root.label

        Accessible.ignored: true
    }

    SelectableText {
        Layout.alignment: Qt.AlignTop
        Layout.fillWidth: true
        activeFocusOnTab: root.copyable
        color: root.copyable ? Theme.text : Theme.secondaryText
        font.family: root.family
        accessibleName: root.label + ": " + root.value
        text: root.value
    }

    RowLayout {
        id: actionRow

        // Buttons stand higher than a line of text: they reach into the gaps to the next rows.
        Layout.alignment: Qt.AlignTop
        Layout.bottomMargin: -Theme.small
        Layout.topMargin: -Theme.small
        visible: children.length > 0
    }
}
