import QtQuick
import Quillmere.App
import "../support/window"

WindowTestCase {
    id: root

    name: "Shell"

    Component {
        id: screenPreloader

        ScreenPreloader {
            running: true
        }
    }

    function test_everyFileLoads() {
        const files = stage.qmlFiles();
        verify(files.length > 40);
        for (const file of files) {
            if (file.endsWith("/Theme.qml"))
                continue;
            const component = Qt.createComponent(file);
            compare(component.errorString(), "", file);
        }
    }

    function test_everyLateScreenIsMadeReady() {
        const screens = createTemporaryObject(screenPreloader, root);
        verify(screens.count > 10);
        for (let i = 0; i < screens.count; ++i)
            tryVerify(() => screens.itemAt(i).file.status === Component.Ready, 5000, screens.files[i]);
    }

    function test_sidebarListsTheNineSectionsInOrder() {
        const list = named("Sections");
        const titles = [];
        for (let i = 0; i < list.count; ++i)
            titles.push(list.itemAtIndex(i).title);
        compare(titles, ["Dashboard", "Installed", "Browse", "Updates", "Cleanup", "Services",
                         "History", "Settings", "About & Legal"]);
    }

    function test_sidebarCountsWhatAScanFound() {
        compare(named("Installed").Accessible.description, "");
        stage.selectPrefix();
        stage.content.installed.scanRequested();
        tryVerify(() => named("Installed").Accessible.description === "3 packages");
        compare(named("Updates").Accessible.description, "");
        stage.resetPrefix();
        compare(named("Installed").Accessible.description, "");
    }

    function test_controlAndANumberSelectsASection_data() {
        return [
            {tag: "first", key: Qt.Key_1, section: "dashboard"},
            {tag: "services", key: Qt.Key_6, section: "services"},
            {tag: "last", key: Qt.Key_9, section: "aboutLegal"},
        ];
    }

    function test_controlAndANumberSelectsASection(data) {
        stage.content.selectIndex(3);
        keyClick(data.key, Qt.ControlModifier);
        compare(stage.content.selectedSection, data.section);
    }

    function test_arrowKeysMoveTheSelectionAndStopAtTheEnds() {
        keyClick(Qt.Key_Up);
        compare(stage.content.selectedSection, "dashboard");
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        compare(stage.content.selectedSection, "browse");
    }

    function test_aSectionIsSelectedByMouse() {
        mouseClick(named("History"));
        compare(stage.content.selectedSection, "history");
    }

    function test_sectionsStayWhereTheyAreUnderASheet() {
        stage.content.selectIndex(5);
        stage.content.services.previewServicesList();
        shows("Command Preview");
        keyClick(Qt.Key_1, Qt.ControlModifier);
        compare(stage.content.selectedSection, "services");
    }

    function test_theSettingsWindowOpensAndClosesByKeyboard() {
        keyClick(Qt.Key_Comma, Qt.ControlModifier);
        tryVerify(() => stage.windowNamed("Quillmere Settings") !== null);
        const settings = stage.windowNamed("Quillmere Settings");
        verify(waitForRendering(settings.contentItem));
        compare(Qt.size(settings.width, settings.height), Qt.size(704, 688));
        tryCompare(settings, "active", true);
        verify(named("Select Homebrew Prefix", settings.contentItem));
        settings.close();
        tryCompare(settings, "visible", false);
        window.requestActivate();
        tryCompare(window, "active", true);
        keyClick(Qt.Key_Comma, Qt.ControlModifier);
        tryCompare(settings, "visible", true);
        settings.close();
    }

    function test_theWindowRemembersItsSize() {
        window.width = 1000;
        window.height = 700;
        window.close();
        compare(stage.rememberedSize(), Qt.size(1000, 700));
    }

    function test_theWindowRemembersThatItFilledTheScreen_data() {
        return [
            {tag: "maximized", visibility: Window.Maximized},
            {tag: "full screen", visibility: Window.FullScreen},
        ];
    }

    function test_theWindowRemembersThatItFilledTheScreen(data) {
        window.visibility = data.visibility;
        window.close();
        verify(stage.remembersMaximized());
        compare(stage.rememberedSize(), Qt.size(1120, 760));
    }

    function test_aMinimizedWindowChangesNothingThatIsRemembered() {
        window.width = 1000;
        window.height = 700;
        window.close();
        window.visibility = Window.Minimized;
        window.width = 1010;
        window.close();
        verify(!stage.remembersMaximized());
        compare(stage.rememberedSize(), Qt.size(1000, 700));
        window.visibility = Window.Maximized;
        window.close();
        window.visibility = Window.Minimized;
        window.close();
        verify(stage.remembersMaximized());
    }

    function test_theSmallestWindowIs900By600() {
        compare(window.minimumWidth, 900);
        compare(window.minimumHeight, 600);
    }
}
