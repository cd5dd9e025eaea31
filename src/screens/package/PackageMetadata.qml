import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Package

// What the catalog lists of the package.
SectionBlock {
    id: root

    required property PackageDetailViewModel viewModel

    symbolName: "doc.text"
    title: "Metadata"

    ValueRow {
        copyable: value !== root.viewModel.notListedText
        label: "Latest known"
        value: root.viewModel.latestKnownText
    }

    ValueRow {
        copyable: value !== root.viewModel.notListedText
        label: "Head version"
        value: root.viewModel.headVersionText
    }

    ValueRow {
        copyable: value !== root.viewModel.notListedText
        label: "Homepage"
        value: root.viewModel.homepageText

        ActionButton {
            help: "Opens the homepage in your browser."
            symbolName: "arrow.up.right.square"
            text: "Open Homepage"
            visible: root.viewModel.canOpenHomepage

            onClicked: root.viewModel.openHomepage()
        }
    }

    CaptionText {
        Layout.fillWidth: true
        Layout.leftMargin: Theme.labelWidth + Theme.medium
        color: Theme.red
        text: root.viewModel.homepageProblem
        visible: text.length > 0
    }

    ValueRow {
        copyable: value !== root.viewModel.notListedText
        label: "License"
        value: root.viewModel.licenseText
    }

    ValueRow {
        copyable: value !== root.viewModel.notListedText
        label: "Tap"
        value: root.viewModel.tapText
    }
}
