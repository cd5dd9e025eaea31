import QtQuick
import Quillmere.Shared

// A package that is installed.
PackageRow {
    id: root

    required property string installedVersion
    required property string latestKnownVersion

    LabelledVersion {
        label: "Installed"
        version: root.installedVersion
    }

    LabelledVersion {
        label: "Latest known"
        version: root.latestKnownVersion
    }
}
