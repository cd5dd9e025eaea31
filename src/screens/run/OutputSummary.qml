pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Run

// What Homebrew printed, reduced to a few rows.
SectionBlock {
    id: root

    required property DirectExecutionSessionViewModel viewModel

    symbolName: viewModel.summarySymbol
    title: viewModel.summaryTitle

    BodyText {
        Layout.fillWidth: true
        color: Theme.secondaryText
        text: root.viewModel.summaryEmptyText
        visible: rows.count === 0
    }

    Repeater {
        id: rows

        model: root.viewModel.summaryRows

        delegate: OutputSummaryRow {
            Layout.fillWidth: true
        }
    }
}
