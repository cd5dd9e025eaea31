import QtQuick
import QtTest
import "../../support/window"

WindowTestCase {
    id: root

    name: "About"

    function open() {
        stage.content.selectIndex(8);
        shows("Homebrew Disclaimer");
    }

    function test_itSaysItsBlocksInOrder() {
        open();
        const names = spoken().map(item => item.Accessible.name);
        compare(names.slice(names.lastIndexOf("Quillmere")), ["Quillmere",
            "A free, local-first macOS companion for Homebrew.",
            "Version " + Qt.application.version,
            "Homebrew Disclaimer", "Homebrew Disclaimer",
            "Quillmere is not affiliated with, endorsed by, or sponsored by Homebrew. Homebrew names, package metadata, and related marks belong to their respective owners.",
            "Privacy Summary", "Privacy Summary",
            "Quillmere stores selected prefix metadata, catalog cache files, local scan markers, and command history locally on this Mac. The app does not upload installed package lists or command history.",
            "Catalog features download public Homebrew metadata from Homebrew sources.",
            "Privacy Policy", "Direct Build", "Direct Build",
            "This build can run approved Homebrew commands from the selected prefix. Informational commands can run directly, mutating commands require confirmation, and uninstall remains preview/copy-only.",
            "Support", "Support", "Support information is available online for Quillmere users.",
            "Quillmere Support", "Homebrew Website", "Legal", "Legal",
            "Quillmere is free software for helping users view metadata and prepare manual commands. External links open only when selected."]);
    }

    function test_theVersionIsThatOfTheBuild() {
        open();
        showsLike(/^Version \d+\.\d+\.\d+$/);
    }

    function test_theLinksAreReachedByTabAndOpenedByReturn() {
        stage.catchPages();
        open();
        named("Privacy Policy").forceActiveFocus();
        const names = [];
        for (let i = 0; i < 3; ++i) {
            compare(window.activeFocusItem.Accessible.role, Accessible.Link);
            names.push(window.activeFocusItem.Accessible.name);
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Tab);
        }
        compare(names, ["Privacy Policy", "Quillmere Support", "Homebrew Website"]);
        const pages = stage.openedPages();
        compare(pages.length, 3);
        verify(pages[0].endsWith("/quillmere/privacy.html"), pages[0]);
        verify(pages[1].endsWith("/quillmere/support.html"), pages[1]);
        compare(pages[2], "https://brew.sh");
    }

    function test_withoutABrowserTheAddressIsShown() {
        open();
        named("Homebrew Website").forceActiveFocus();
        keyClick(Qt.Key_Return);
        shows("No browser opened. The page is at");
        shows("https://brew.sh");
    }

    function test_nothingIsOpenedByLooking() {
        stage.catchPages();
        open();
        wait(100);
        compare(stage.openedPages(), []);
    }
}
