import QtQuick
import QtQuick.Layouts

// A surface with a hairline around what belongs together.
Rectangle {
    id: root

    default property alias content: column.data
    property int padding: Theme.normal
    property alias spacing: column.spacing

    implicitWidth: column.implicitWidth + 2 * padding
    implicitHeight: column.implicitHeight + 2 * padding
    color: Theme.card
    radius: Theme.largeRadius

    border.color: Theme.hairline
    border.width: Theme.borderWidth

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: root.padding
        spacing: Theme.medium
    }
}
