import QtQuick
import QtTest
import "../../support/window"

WindowTestCase {
    id: root

    name: "Dashboard"

    readonly property string safety: "Quillmere Direct can run approved commands from the selected Homebrew prefix. Mutating commands require confirmation; uninstall remains preview-only."
    readonly property string privacy: "Selected prefix metadata, catalog cache files, scan markers, and command history stay on this Mac."

    // What is read of the screen, from its head to its end.
    function content() {
        const names = spoken().map(item => item.Accessible.name);
        return names.slice(names.lastIndexOf("Quillmere"));
    }

    function test_aFreshInstallationIsToldInOrder() {
        compare(content(), ["Quillmere", "Homebrew, made visible without taking over your tools.",
                            "Browse public metadata, inspect local packages, and run approved Homebrew commands from your selected prefix.",
                            "Direct build: approved commands can run",
                            "Catalog", "Catalog", "Not available",
                            "Catalog metadata unavailable. Refresh catalog metadata when ready.",
                            "Local Homebrew", "Local Homebrew", "Catalog-only mode",
                            "No local prefix selected. This is supported; local-only sections will ask before accessing files.",
                            "Command Safety", "Command Safety", "Execution enabled", safety,
                            "Privacy", "Privacy", "Local-first", privacy, "View Installed"]);
    }

    function test_theCardsFollowTheStore_data() {
        return [
            {tag: "fresh", catalog: 24, scan: 1, words: ["Fresh", "Fresh"],
             like: [/^Catalog metadata fresh: .*\.$/, /^Local inventory fresh: .*\.$/]},
            {tag: "stale scan", catalog: 6 * 24, scan: 25, words: ["Fresh", "Stale"],
             like: [/^Catalog metadata fresh: .*\.$/,
                    /^Local inventory stale: .*\. Scan local inventory for current guidance\.$/]},
            {tag: "stale", catalog: 8 * 24, scan: 25, words: ["Stale", "Stale"],
             like: [/^Catalog metadata stale: .*\. Refresh catalog metadata for current guidance\.$/,
                    /^Local inventory stale: .*\. Scan local inventory for current guidance\.$/]},
        ];
    }

    function test_theCardsFollowTheStore(data) {
        stage.selectPrefix();
        stage.setAges(data.catalog, data.scan);
        const said = content();
        compare([said[6], said[10]], data.words);
        verify(data.like[0].test(said[7]), said[7]);
        verify(data.like[1].test(said[11]), said[11]);
    }

    function test_viewInstalledIsOneKeyAway() {
        const view = button("View Installed");
        view.forceActiveFocus();
        keyClick(Qt.Key_Return);
        compare(stage.content.selectedSection, "installed");
    }

    function test_tabLeadsFromTheSidebarToTheButton() {
        keyClick(Qt.Key_Tab);
        tryCompare(button("View Installed"), "activeFocus", true);
    }

    function test_itFitsTheSmallestWindow() {
        window.width = 900;
        window.height = 600;
        stage.selectPrefix();
        stage.setAges(8 * 24, 25);
        wait(100);
        const view = button("View Installed");
        verify(view.mapToItem(null, 0, view.height).y < 600);
    }
}
