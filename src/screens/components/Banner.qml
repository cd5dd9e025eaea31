import QtQuick
import QtQuick.Layouts

// Something that went wrong and has to be known while what is below is read.
Rectangle {
    id: root

    required property string text

    default property alias actions: row.data

    implicitHeight: row.implicitHeight + 2 * Theme.small
    color: Theme.tintFill("orange")
    radius: Theme.smallRadius

    RowLayout {
        id: row

        anchors.left: parent.left
        anchors.margins: Theme.medium
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.small

        Symbol {
            name: "exclamationmark.triangle"
            Layout.alignment: Qt.AlignVCenter
            color: Theme.orange
        }

        BodyText {
            Layout.fillWidth: true
            text: root.text
        }
    }
}
