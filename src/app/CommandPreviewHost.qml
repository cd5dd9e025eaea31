import QtQuick
import Quillmere.App
import Quillmere.Screens

// Puts the preview that is open over the window. The sheet goes before its model does, so that
// nothing of it ever looks at a model that is gone.
Item {
    id: root

    required property ContentViewModel viewModel

    property CommandPreviewSheet sheet: null

    function follow(): void {
        if (sheet) {
            sheet.close();
            sheet.destroy();
        }
        sheet = viewModel.preview
                ? maker.createObject(parent, {viewModel: viewModel.preview, shown: true}) : null;
    }

    Component {
        id: maker

        CommandPreviewSheet {
        }
    }

    Connections {
        function onPreviewChanged(): void {
            root.follow();
        }

        target: root.viewModel
    }
}
