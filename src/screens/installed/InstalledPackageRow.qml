import QtQuick
import Quillmere.Shared

// A package that is installed.
PackageRow {
    id: root

    required property string installedVersion
    required property string latestKnownVersion

    VersionColumn {
        label: "Installed"
        version: root.installedVersion
    }

    VersionColumn {
        label: "Latest known"
        version: root.latestKnownVersion
    }
}
