import QtQuick
import QtQuick.Templates as T
import Quillmere.App

// Puts the preview that is open over the window. The sheet goes before its model does, so that
// nothing of it ever looks at a model that is gone.
Item {
    id: root

    required property ContentViewModel viewModel

    property Component maker: null
    property T.Dialog sheet: null

    function follow(): void {
        if (sheet) {
            sheet.close();
            sheet.destroy();
        }
        // The first frame of a start does without it.
        if (!maker)
            maker = Qt.createComponent("../Screens/CommandPreviewSheet.qml");
        sheet = viewModel.preview
                ? maker.createObject(parent, {viewModel: viewModel.preview, shown: true}) : null;
    }

    Connections {
        function onPreviewChanged(): void {
            root.follow();
        }

        target: root.viewModel
    }
}
