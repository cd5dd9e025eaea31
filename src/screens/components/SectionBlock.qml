import QtQuick
import QtQuick.Layouts

// One topic of a screen: a title with its symbol and a card with the content.
Card {
    id: root

    required property string title

    property string symbolName: ""

    Layout.fillWidth: true
    padding: Theme.normal + Theme.tiny

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    RowLayout {
        spacing: Theme.small

        Symbol {
            name: root.symbolName
            color: Theme.accent
            visible: root.symbolName.length > 0
        }

        TitleText {
            Layout.fillWidth: true
            elide: Text.ElideRight
            text: root.title
            wrapMode: Text.NoWrap
        }
    }
}
