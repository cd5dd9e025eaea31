pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Package

// The commands that can be previewed for the package.
SectionBlock {
    id: root

    required property PackageDetailViewModel viewModel

    symbolName: "terminal"
    title: "Command Preview"

    BodyText {
        Layout.fillWidth: true
        text: root.viewModel.commandsText
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.small
        visible: buttons.count > 0

        Repeater {
            id: buttons

            model: root.viewModel.commands

            delegate: ActionButton {
                required property int index
                required property string title
                required property string accessibleLabel
                required property string hint
                required property bool destructive

                required symbolName

                accessibleName: accessibleLabel
                help: hint
                textColor: destructive ? Theme.red : Theme.text
                text: title

                onClicked: root.viewModel.previewCommand(index)
            }
        }
    }
}
