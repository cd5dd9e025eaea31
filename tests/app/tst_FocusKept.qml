import QtQuick
import "../support/window"

// The keyboard is somewhere that can be seen, whatever comes and goes on a screen.
PackageListTestCase {
    id: root

    name: "FocusKept"

    function focused() {
        return window.activeFocusItem.Accessible.name || String(window.activeFocusItem);
    }

    function test_aScanFromTheKeyboardLeadsToTheList() {
        stage.selectPrefix();
        stage.content.selectIndex(1);
        shows("Scan Read-Only Inventory");
        keyClick(Qt.Key_Tab);
        compare(focused(), "Scan Read-Only Inventory");
        keyClick(Qt.Key_Return);
        tryVerify(() => list() !== null, 10000);
        tryVerify(() => list().currentItem !== null && list().currentItem.activeFocus, 3000, focused());
    }

    function test_downLeadsFromTheSearchToWhatItFound() {
        loadCatalog();
        search("nothing is called so");
        shows("No Packages Found");
        keyClick(Qt.Key_Down);
        verify(field().activeFocus);
        keyClick(Qt.Key_A, Qt.ControlModifier);
        type("wget");
        keyClick(Qt.Key_Return);
        tryVerify(() => list() !== null);
        keyClick(Qt.Key_Down);
        compare(focused(), "wget, Formula, version 1.25.0, Internet file retriever");
    }

    function test_aSectionIsChosenFromAValueThatCanBeCopied() {
        stage.openPackage("installed");
        named("Latest known: 1.25.0").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_4, Qt.ControlModifier);
        compare(stage.content.selectedSection, "updates");
    }

    function test_aSectionIsChosenFromACommandThatCanBeCopied() {
        stage.selectPrefix();
        stage.content.selectIndex(7);
        shows("Settings");
        named("Selected prefix " + stage.content.settings.prefixSelection.selectedPath)
            .forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_4, Qt.ControlModifier);
        compare(stage.content.selectedSection, "updates");
    }

    function test_aPageThatFitsStaysWhereItIs() {
        stage.content.selectIndex(5);
        shows("Services Guidance");
        const action = button("Preview services list command");
        let page = action;
        while (page.overflows === undefined)
            page = page.parent;
        // It only just fits: less is free below the action than is left below what is revealed.
        window.height = Qt.binding(() => page.implicitHeight);
        verify(waitForRendering(window.contentItem));
        compare(page.height, page.implicitHeight);
        named("Sections").forceActiveFocus();
        action.forceActiveFocus(Qt.TabFocusReason);
        wait(50);
        compare(page.viewTop, -page.margin);
    }

    function test_aPageIsScrolledByItsKeys() {
        stage.content.selectIndex(7);
        shows("Settings");
        button("Select Homebrew Prefix").forceActiveFocus(Qt.TabFocusReason);
        const top = () => named("Local Inventory Refresh").mapToItem(null, 0, 0).y;
        wait(50);
        const before = top();
        keyClick(Qt.Key_PageDown);
        verify(top() < before);
        keyClick(Qt.Key_Home);
        compare(top(), before);
        keyClick(Qt.Key_End);
        const last = top();
        verify(last < before);
        keyClick(Qt.Key_PageUp);
        verify(top() > last);
    }

    function test_aSecondReturnDoesNotCancelTheRun() {
        stage.selectPrefix();
        stage.previewUpgrade();
        press("Run Command");
        tryVerify(() => button("Confirm brew upgrade") !== null);
        button("Confirm brew upgrade").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        tryVerify(() => focused() === "Show command-line output", 3000, focused());
        keyClick(Qt.Key_Return);
        shows("Completed with exit code 0");
    }

    function test_aScanOfUpdatesLeadsToTheFirst() {
        stage.content.selectIndex(3);
        stage.showInventory("idle-prefix");
        shows("Scan Read-Only Inventory");
        keyClick(Qt.Key_Tab);
        stage.showInventory("scanning");
        tryVerify(() => focused() === "Cancel", 3000, focused());
        stage.showInventory("updates");
        tryVerify(() => focused() === "Preview upgrade command for Firefox", 3000, focused());
    }

    function test_fromEverySectionTheKeyboardGoesAlong_data() {
        const data = [];
        for (const width of [900, 1400])
            for (let from = 0; from < 9; ++from)
                data.push({tag: "from " + (from + 1) + " at " + width, from: from, width: width});
        return data;
    }

    function test_fromEverySectionTheKeyboardGoesAlong(data) {
        window.width = data.width;
        scan();
        stage.addToHistory();
        for (let to = 0; to < 9; ++to) {
            stage.content.selectIndex(data.from);
            named("Sections").forceActiveFocus();
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_1 + to, Qt.ControlModifier);
            tryVerify(() => spoken().includes(window.activeFocusItem), 3000,
                      "to " + (to + 1) + ": " + focused());
            verify(focused() !== "Sections" || to === data.from);
        }
    }
}
