import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// What narrows a list of packages: a search and a type. The shortcut for finding leads here.
RowLayout {
    id: root

    required property string searchText
    required property string placeholder
    required property list<string> filterTitles
    required property int filterIndex

    signal searchWanted(string text)
    signal filterWanted(int index)

    spacing: Theme.normal

    function edit(): void {
        field.edit();
    }

    Shortcut {
        enabled: root.visible && root.enabled
        sequence: "Ctrl+F"

        onActivated: root.edit()
    }

    SearchField {
        id: field

        Layout.fillWidth: true
        placeholder: root.placeholder
        text: root.searchText

        onCommitted: text => root.searchWanted(text)
    }

    SegmentedPicker {
        current: root.filterIndex
        options: root.filterTitles
        title: "Package type"

        onPicked: index => root.filterWanted(index)
    }
}
