import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Package

// One package: what is known of it, what is installed, and the commands for it.
ScreenPage {
    id: root

    required property PackageDetailViewModel viewModel

    // Whatever had the keyboard in the section has it until it learns that it is covered.
    Component.onCompleted: focus = true

    PackageHeader {
        Layout.fillWidth: true
        viewModel: root.viewModel
    }

    PackageMetadata {
        viewModel: root.viewModel
    }

    SectionBlock {
        symbolName: "shippingbox"
        title: "Local State"

        ValueRow {
            copyable: root.viewModel.isInstalled
            label: "Installed version"
            value: root.viewModel.installedVersionText
        }

        ValueRow {
            copyable: root.viewModel.isInstalled
            label: "Local source"
            value: root.viewModel.localSourceText
        }
    }

    PackageTags {
        clickable: root.viewModel.canOpenDetailItems
        names: root.viewModel.detailItems
        problem: root.viewModel.formulaProblem
        symbolName: root.viewModel.detailSymbolName
        text: root.viewModel.detailText
        title: root.viewModel.detailTitle
        viewHeight: root.height
        viewTop: root.viewTop - y

        onChosen: name => root.viewModel.formulaRequested(name)
    }

    PackageTags {
        clickable: true
        names: root.viewModel.reverseDependencyNames
        symbolName: "arrow.triangle.branch"
        text: root.viewModel.reverseDependencyText
        title: "Reverse Dependencies"
        viewHeight: root.height
        viewTop: root.viewTop - y

        onChosen: name => root.viewModel.formulaRequested(name)
    }

    SectionBlock {
        symbolName: "clock"
        title: "Freshness"

        BodyText {
            Layout.fillWidth: true
            text: root.viewModel.catalogFreshnessText
        }

        BodyText {
            Layout.fillWidth: true
            text: root.viewModel.inventoryFreshnessText
        }
    }

    PackageCommands {
        viewModel: root.viewModel
    }

    // The button of a mouse that means the same.
    TapHandler {
        parent: root
        acceptedButtons: Qt.BackButton

        onTapped: root.viewModel.backRequested()
    }

    Connections {
        function onHomepageProblemChanged(): void {
            root.announce(root.viewModel.homepageProblem);
        }

        function onFormulaProblemChanged(): void {
            root.announce(root.viewModel.formulaProblem);
        }

        target: root.viewModel
    }
}
