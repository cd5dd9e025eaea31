import QtQuick
import QtQuick.Layouts
import Quillmere.Cleanup
import Quillmere.Components

// The download cache: where it is and how large.
SectionBlock {
    id: root

    required property CleanupGuidanceViewModel viewModel

    symbolName: "externaldrive"
    title: "Cache"

    ValueRow {
        family: Theme.monospacedFamily
        label: "Location"
        value: root.viewModel.cachePath
        visible: value.length > 0
    }

    ValueRow {
        label: "Estimated size"
        value: root.viewModel.cacheSizeText
        visible: value.length > 0
    }

    BodyText {
        Layout.fillWidth: true
        color: Theme.secondaryText
        text: root.viewModel.cacheText
        visible: text.length > 0
    }
}
