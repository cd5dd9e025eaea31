import QtQuick
import QtQuick.Templates as T
import Quillmere.App

// Puts the preview that is open over the window. The sheet goes before its models do, so that
// nothing of it ever looks at a model that is gone.
Item {
    id: root

    required property CommandWorkflow commands

    property Component sheetComponent: null
    property T.Dialog sheet: null

    function updateSheet(): void {
        if (sheet) {
            sheet.close();
            sheet.destroy();
        }
        // The first frame of a start does without the sheet.
        if (!sheetComponent)
            sheetComponent = Qt.createComponent("CommandSheet.qml");
        sheet = commands.preview
                ? sheetComponent.createObject(parent, {
                    commands: commands, viewModel: commands.preview, shown: true
                }) : null;
    }

    Connections {
        function onPreviewChanged(): void {
            root.updateSheet();
        }

        target: root.commands
    }
}
