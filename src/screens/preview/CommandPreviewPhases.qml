pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Preview

// The three phases of the sheet, one at a time.
FocusScope {
    id: root

    required property CommandPreviewSheetModel viewModel
    required property Component sessionPage

    implicitHeight: pages.implicitHeight

    Keys.onEscapePressed: viewModel.phase === CommandPreviewSheetModel.Starting
                          ? viewModel.cancelStartup() : viewModel.close()

    ColumnLayout {
        id: pages

        anchors.fill: parent

        Repeater {
            model: root.viewModel.phase === CommandPreviewSheetModel.Preview ? 1 : 0

            delegate: CommandPreviewPage {
                Layout.fillHeight: true
                Layout.fillWidth: true
                focus: true
                viewModel: root.viewModel
            }
        }

        Repeater {
            model: root.viewModel.phase === CommandPreviewSheetModel.Starting ? 1 : 0

            delegate: DirectExecutionStartupView {
                Layout.fillHeight: true
                Layout.fillWidth: true
                focus: true
                viewModel: root.viewModel
            }
        }

        Repeater {
            model: root.viewModel.phase === CommandPreviewSheetModel.Session ? 1 : 0
            delegate: root.sessionPage
        }
    }
}
