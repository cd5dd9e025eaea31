pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.App
import Quillmere.Package

// The screen of the selected section, and over it the package that is open in it. A screen lives
// while its section is selected, so that it is as it was when a package is closed. Its file is
// loaded when it is first shown: a start shows one of nine.
FocusScope {
    id: root

    required property ContentViewModel viewModel

    readonly property PackageDetailViewModel detail: viewModel.details.current
    readonly property string section: viewModel.selectedSection

    onDetailChanged: detailLoader.show(detail)

    component ViewLoader: Loader {
        function load(view: string, viewModel: QtObject): void {
            setSource("../" + view + ".qml", viewModel ? {viewModel: viewModel} : {});
        }

        anchors.fill: parent
    }

    component Section: ViewLoader {
        id: loader

        required property string name
        required property string view

        property QtObject viewModel: null

        readonly property bool selected: root.section === name

        function loadIfSelected(): void {
            if (selected)
                load(view, viewModel);
            else
                loader.source = "";
        }

        Component.onCompleted: loadIfSelected()

        onSelectedChanged: loadIfSelected()
        // The screen before may still be there and have the keyboard.
        onLoaded: {
            loader.focus = true;
            item.focus = true;
        }
    }

    FocusScope {
        anchors.fill: parent
        focus: root.detail === null
        visible: root.detail === null

        Section {
            name: "dashboard"
            view: "Dashboard/DashboardView"
            viewModel: root.viewModel.dashboard
        }

        Section {
            name: "installed"
            view: "Installed/InstalledPackagesView"
            viewModel: root.viewModel.installed
        }

        Section {
            name: "browse"
            view: "Browse/FormulaCatalogView"
            viewModel: root.viewModel.browse
        }

        Section {
            name: "updates"
            view: "Updates/UpdatesView"
            viewModel: root.viewModel.updates
        }

        Section {
            name: "cleanup"
            view: "Cleanup/CleanupGuidanceView"
            viewModel: root.viewModel.cleanup
        }

        Section {
            name: "services"
            view: "Services/ServicesGuidanceView"
            viewModel: root.viewModel.services
        }

        Section {
            name: "history"
            view: "History/CommandHistoryView"
            viewModel: root.viewModel.history
        }

        Section {
            name: "settings"
            view: "Settings/SettingsView"
            viewModel: root.viewModel.settings
        }

        Section {
            name: "aboutLegal"
            view: "About/AboutLegalView"
        }
    }

    ViewLoader {
        id: detailLoader

        function show(detail: PackageDetailViewModel): void {
            if (detail)
                load("Package/PackageDetailView", detail);
            else
                detailLoader.source = "";
        }

        focus: root.detail !== null

        onLoaded: item.focus = true
    }
}
