pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Preview

// What a command may do, one bullet each.
ColumnLayout {
    id: root

    required property CommandPreviewSheetModel viewModel

    spacing: Theme.small
    visible: bullets.count > 0

    PlainText {
        font.weight: Font.DemiBold
        text: "Possible Effects"
    }

    Repeater {
        id: bullets

        model: root.viewModel.effects

        delegate: RowLayout {
            id: effect

            required property string modelData

            spacing: Theme.small

            Symbol {
                name: "circle.fill"
                Layout.alignment: Qt.AlignTop
                Layout.topMargin: Theme.tiny
                size: Theme.small
            }

            BodyText {
                Layout.fillWidth: true
                text: effect.modelData
            }
        }
    }
}
