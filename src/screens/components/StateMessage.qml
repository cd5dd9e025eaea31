import QtQuick
import QtQuick.Layouts

// What a place says when it has nothing to list: empty, still loading, or failed.
ColumnLayout {
    id: root

    required property string symbolName
    required property string title
    required property string text

    property string note: ""
    default property alias actions: actionRow.data

    spacing: Theme.small

    Symbol {
        name: root.symbolName
        Layout.alignment: Qt.AlignHCenter
        Layout.bottomMargin: Theme.small
        opacity: 0.7
        size: Theme.displaySize * 2
    }

    TitleText {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: root.title
    }

    BodyText {
        Layout.alignment: Qt.AlignHCenter
        Layout.fillWidth: true
        Layout.maximumWidth: Theme.alertWidth
        color: Theme.secondaryText
        horizontalAlignment: Text.AlignHCenter
        text: root.text
    }

    CaptionText {
        Layout.alignment: Qt.AlignHCenter
        Layout.fillWidth: true
        Layout.maximumWidth: Theme.alertWidth
        horizontalAlignment: Text.AlignHCenter
        text: root.note
        visible: text.length > 0
    }

    RowLayout {
        id: actionRow

        Layout.alignment: Qt.AlignHCenter
        Layout.topMargin: Theme.small
        spacing: Theme.small
        visible: children.length > 0
    }
}
