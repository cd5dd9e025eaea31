pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.App
import Quillmere.Preview
import Quillmere.Run

// A command in its sheet: first its preview, then its run.
CommandPreviewSheet {
    id: root

    required property CommandWorkflow commands

    // Kept when the preview closes, until the sheet is gone.
    property DirectExecutionSessionViewModel session: null

    wide: session !== null && session.showsRawOutput

    sessionPage: DirectExecutionSessionView {
        Layout.fillHeight: true
        Layout.fillWidth: true
        canClose: root.viewModel.canClose
        focus: true
        viewModel: root.session

        onClosed: root.viewModel.close()
    }

    Connections {
        function onSessionChanged(): void {
            if (root.commands.session)
                root.session = root.commands.session;
        }

        target: root.commands
    }
}
