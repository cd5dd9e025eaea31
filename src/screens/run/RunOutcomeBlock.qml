pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Run

// What came of a run that has ended: one sentence, what to do about a failure, what else happened,
// and what Homebrew wants the user to know.
SectionBlock {
    id: root

    required property DirectExecutionSessionViewModel viewModel

    readonly property int textMargin: Theme.symbolSize + Theme.small

    symbolName: "doc.text"
    title: "Outcome"

    OutcomeLine {
        id: sentence

        Layout.fillWidth: true
        prominent: true
        symbolName: root.viewModel.outcomeSymbol
        text: root.viewModel.outcomeSentence
        tint: root.viewModel.outcomeTint
        visible: text.length > 0
    }

    ColumnLayout {
        Layout.leftMargin: root.textMargin
        Layout.topMargin: -Theme.small
        spacing: Theme.tiny
        visible: root.viewModel.outcomeDetails.length > 0

        Repeater {
            model: root.viewModel.outcomeDetails

            delegate: BodyText {
                required property string modelData

                Layout.fillWidth: true
                color: Theme.secondaryText
                text: modelData
            }
        }
    }

    OutcomeLine {
        Layout.fillWidth: true
        symbolName: "lightbulb"
        text: root.viewModel.adviceText
        tint: "blue"
        visible: text.length > 0
    }

    CaptionText {
        Layout.fillWidth: true
        text: "Caveats"
        visible: caveats.visible

        Accessible.role: Accessible.Heading
    }

    SelectableCaveats {
        id: caveats

        Layout.fillWidth: true
        text: root.viewModel.outcomeCaveats
        visible: text.length > 0
    }

    Repeater {
        model: root.viewModel.outcomeWarnings

        delegate: OutcomeLine {
            required property string modelData

            Layout.fillWidth: true
            spokenPrefix: "Warning: "
            symbolName: "exclamationmark.triangle"
            text: modelData
            tint: "orange"
        }
    }
}
