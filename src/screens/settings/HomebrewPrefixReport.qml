pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Settings

// The verdict on the folder that was looked at last, and its seven locations.
ColumnLayout {
    id: root

    required property HomebrewPrefixSelectionViewModel viewModel

    spacing: Theme.small

    RowLayout {
        Layout.topMargin: Theme.tiny
        spacing: Theme.small

        Symbol {
            name: root.viewModel.looksLikePrefix ? "checkmark.circle" : "xmark.octagon"
            color: root.viewModel.looksLikePrefix ? Theme.green : Theme.orange
        }

        BodyText {
            Layout.fillWidth: true
            color: root.viewModel.looksLikePrefix ? Theme.green : Theme.orange
            font.weight: Font.DemiBold
            text: root.viewModel.verdict
        }
    }

    CaptionText {
        Layout.fillWidth: true
        elide: Text.ElideMiddle
        font.family: Theme.monospacedFamily
        text: root.viewModel.reportPath
        visible: text !== root.viewModel.selectedPath
        wrapMode: Text.NoWrap
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 0

        Repeater {
            model: root.viewModel.locations

            delegate: HomebrewPrefixLocationRow {
                Layout.fillWidth: true
            }
        }
    }
}
