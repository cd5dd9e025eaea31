import QtQuick

// A test of a screen that lists packages.
WindowTestCase {
    id: root

    function list() {
        return spoken().find(item => item.Accessible.role === Accessible.List
                                     && /^Showing/.test(item.Accessible.name)) || null;
    }

    function field() {
        return named("Package search");
    }

    function radio(name) {
        return spoken().find(item => item.Accessible.role === Accessible.RadioButton
                                     && item.Accessible.name === name) || null;
    }

    function type(text) {
        for (const letter of text)
            keyClick(letter);
    }

    function search(text) {
        keyClick(Qt.Key_F, Qt.ControlModifier);
        verify(field().activeFocus);
        type(text);
        keyClick(Qt.Key_Return);
    }

    function currentRow() {
        return list().currentItem.accessibleName;
    }

    function beginBrowse(width) {
        window.width = width || 1400;
        stage.content.selectIndex(2);
        shows("Browse Catalog");
    }

    function loadCatalog() {
        beginBrowse();
        stage.serveCatalog();
        press("Fetch All");
        tryVerify(isListed, 10000);
    }

    // Also the rows behind the first one, which a busy machine makes later.
    function isListed() {
        return list() !== null && list().itemAtIndex(0) !== null && !isPolishScheduled(list());
    }

    function beginInstalled() {
        stage.content.selectIndex(1);
    }

    function scan() {
        stage.selectPrefix();
        beginInstalled();
        press("Scan Read-Only Inventory");
        tryVerify(isListed, 10000);
    }
}
