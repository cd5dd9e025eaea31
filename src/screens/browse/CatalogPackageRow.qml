import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Shared

// A package of the catalog.
PackageRow {
    id: root

    required property string version

    PlainText {
        Layout.maximumWidth: Theme.sidebarWidth
        color: Theme.secondaryText
        elide: Text.ElideRight
        maximumLineCount: 1
        text: root.version
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }
}
