import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Package

// What the package is, and the way back to where it was opened.
ColumnLayout {
    id: root

    required property PackageDetailViewModel viewModel

    spacing: Theme.medium

    ActionButton {
        focus: true
        help: "Goes back to where the package was opened."
        symbolName: "chevron.backward"
        text: "Back"

        onClicked: root.viewModel.backRequested()
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.small

        SelectableText {
            id: name

            width: Math.min(implicitWidth, parent.width)
            font.pixelSize: Theme.displaySize
            font.weight: Font.DemiBold
            text: root.viewModel.name

            Accessible.role: Accessible.Heading
        }

        Row {
            height: Math.max(implicitHeight, kind.implicitHeight)
            spacing: Theme.small
            topPadding: (name.font.pixelSize * 1.3 - kind.implicitHeight) / 2

            Pill {
                id: kind

                symbolName: "shippingbox"
                text: root.viewModel.kindText
            }

            Pill {
                width: Math.min(implicitWidth, root.width - kind.width - parent.spacing)
                text: root.viewModel.versionText
                tint: "blue"
                visible: text.length > 0
            }
        }
    }

    Pill {
        symbolName: "exclamationmark.triangle"
        text: root.viewModel.rescanWarning
        tint: "orange"
        visible: text.length > 0
    }

    BodyText {
        Layout.fillWidth: true
        color: Theme.secondaryText
        text: root.viewModel.descriptionText
    }
}
