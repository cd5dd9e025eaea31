pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Run

// The four steps of a run, from left to right.
RowLayout {
    id: root

    required property DirectExecutionSessionViewModel viewModel

    spacing: Theme.small

    Repeater {
        model: root.viewModel.progressSteps

        delegate: ProgressStep {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: true
            Layout.preferredWidth: Theme.borderWidth
        }
    }
}
