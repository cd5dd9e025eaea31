import QtQuick

// The keyboard is somewhere that can be seen, whatever comes and goes on a screen.
PackageCase {
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
