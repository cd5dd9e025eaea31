import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Shared

// What narrows a list of packages: a search and a type. The shortcut for finding leads here.
RowLayout {
    id: root

    required property PackageSearch search
    required property string placeholder

    signal leftDownwards

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
        text: root.search.searchText

        onCommitted: text => root.search.searchText = text
        onLeftDownwards: root.leftDownwards()
    }

    SegmentedPicker {
        current: root.search.filterIndex
        options: root.search.filterTitles
        title: "Package type"

        onPicked: index => root.search.filterIndex = index
    }
}
