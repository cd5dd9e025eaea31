import QtQuick
import QtTest
import "../../support/window"

WindowTestCase {
    id: root

    name: "Settings"


    function open() {
        stage.content.selectIndex(7);
        shows("Settings");
    }

    function content() {
        const names = spoken().filter(item => item.Accessible.role !== Accessible.Notification)
                              .map(item => item.Accessible.name);
        return names.slice(names.indexOf("Reset Selected Prefix") + 1);
    }

    function test_theSectionsAreInOrder() {
        open();
        compare(content(), [
            "Local Inventory Refresh", "Local Inventory Refresh", "Last Scan: Never",
            "Catalog Refresh", "Catalog Refresh", "Last Refresh: Never",
            "Formula and cask metadata are cached locally after a successful refresh for offline browsing.",
            "Clear Metadata Cache",
            "Local Data", "Local Data",
            "Command history is local to this Mac and includes copied commands plus Direct execution summaries when available.",
            "Stored Records: 0", "Clear Command History",
            "Reset Onboarding", "Completed: Yes", "Reset Onboarding",
            "Privacy", "Privacy",
            "Quillmere stores selected prefix metadata, catalog cache files, local scan markers, and command history locally on this Mac.",
            "The app fetches public Homebrew metadata for catalog browsing. It does not upload installed package lists or command history.",
            "Privacy Policy",
            "Support", "Support", "Support information is available online for Quillmere users.",
            "Quillmere Support",
            "Quillmere is not affiliated with Homebrew. Homebrew names and metadata belong to their respective owners."]);
    }

    function test_eachResetAsksInItsWords_data() {
        return [
            {tag: "Reset Selected Prefix", title: "Reset Homebrew Prefix?", confirm: "Reset Prefix",
             done: "Homebrew prefix reset"},
            {tag: "Clear Metadata Cache", title: "Clear Metadata Cache?", confirm: "Clear Cache",
             done: "Metadata cache cleared"},
            {tag: "Clear Command History", title: "Clear Command History?",
             confirm: "Clear History", done: "Command history cleared"},
        ];
    }

    function test_eachResetAsksInItsWords(data) {
        stage.selectPrefix();
        stage.setAges(1, 1);
        stage.addToHistory();
        open();
        const ask = button(data.tag);
        ask.forceActiveFocus();
        keyClick(Qt.Key_Space);
        shows(data.title);
        tryVerify(() => button("Cancel").activeFocus);
        keyClick(Qt.Key_Return);
        hides(data.title);
        tryCompare(ask, "activeFocus", true);
        keyClick(Qt.Key_Space);
        press(data.confirm);
        hides(data.title);
        announces(data.done);
    }

    function test_theCacheCanBeClearedWhileThereIsSomethingToClear() {
        open();
        verify(!button("Clear Metadata Cache").enabled);
        stage.setAges(1, 1);
        verify(button("Clear Metadata Cache").enabled);
        stage.content.settings.askClearCacheMarkers();
        press("Clear Cache");
        tryVerify(() => !button("Clear Metadata Cache").enabled);
        shows("Last Refresh: Never");
        verify(named("Last Scan: Never") === null);
    }

    function test_theKeyboardGoesOnWhenItsButtonIsGone() {
        stage.setAges(1, 1);
        open();
        const ask = button("Clear Metadata Cache");
        ask.forceActiveFocus();
        keyClick(Qt.Key_Space);
        tryVerify(() => button("Clear Cache") !== null);
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Return);
        tryCompare(ask, "enabled", false);
        tryCompare(button("Clear Command History"), "activeFocus", true);
    }

    function test_theNextQuestionBeginsOnTheHarmlessButtonAgain() {
        stage.setAges(1, 1);
        stage.addToHistory();
        open();
        for (const asking of ["Clear Metadata Cache", "Clear Command History"]) {
            button(asking).forceActiveFocus();
            keyClick(Qt.Key_Space);
            tryVerify(() => button("Cancel") !== null && button("Cancel").activeFocus);
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Return);
            hides("Cancel");
        }
    }

    function test_oneWindowShowsAtOnceWhatTheOtherDid() {
        stage.addToHistory();
        open();
        keyClick(Qt.Key_Comma, Qt.ControlModifier);
        tryVerify(() => stage.windowNamed("Quillmere Settings") !== null);
        const other = stage.windowNamed("Quillmere Settings");
        verify(waitForRendering(other.contentItem));
        verify(named("Stored Records: 1", other.contentItem));
        stage.content.settingsWindow.askClearHistory();
        stage.content.settingsWindow.confirm();
        verify(named("Stored Records: 0", other.contentItem));
        shows("Stored Records: 0");
        stage.content.selectIndex(6);
        shows("No Command History");
        other.close();
    }

    function test_theLinksOpenWhenTheyAreChosen() {
        stage.catchPages();
        open();
        compare(stage.openedPages(), []);
        for (const name of ["Privacy Policy", "Quillmere Support"]) {
            const link = named(name);
            compare(link.Accessible.role, Accessible.Link);
            link.forceActiveFocus();
            keyClick(Qt.Key_Return);
        }
        const pages = stage.openedPages();
        compare(pages.length, 2);
        verify(pages[0].endsWith("/quillmere/privacy.html"), pages[0]);
        verify(pages[1].endsWith("/quillmere/support.html"), pages[1]);
    }
}
