import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Shared

// What narrows a list of packages: a search and a type. The shortcut for finding leads here.
RowLayout {
    id: root

    required property PackageSearch search
    required property string placeholder

    signal downPressed

    spacing: Theme.normal

    function takeFocus(): void {
        field.takeFocus();
    }

    Shortcut {
        enabled: root.visible && root.enabled
        sequence: "Ctrl+F"

        onActivated: root.takeFocus()
    }

    SearchField {
        id: field

        Layout.fillWidth: true
        placeholder: root.placeholder
        text: root.search.searchText

        onCommitted: text => root.search.searchText = text
        onDownPressed: root.downPressed()
    }

    SegmentedPicker {
        current: root.search.filterIndex
        options: root.search.filterTitles
        title: "Package type"

        onPicked: index => root.search.filterIndex = index
    }
}
