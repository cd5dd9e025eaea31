import QtQuick
import "../../support/window"

PackageListTestCase {
    id: root

    name: "BrowseMenu"

    function item(name) {
        return spoken().find(each => each.Accessible.role === Accessible.MenuItem
                                     && each.Accessible.name === name) || null;
    }

    function test_aNarrowWindowOffersTheSameInAMenu() {
        beginBrowse(900);
        tryVerify(() => button("Fetch Casks") === null && named("Load") !== null);
        stage.serveCatalog();
        const load = named("Load");
        load.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        for (const name of ["Catalog", "Formulae", "Casks"])
            tryVerify(() => item(name) !== null && item(name).enabled, 5000, name);
        for (const name of ["Cached Catalog", "Cached Formulae", "Cached Casks"])
            verify(!item(name).enabled, name);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        tryVerify(() => list() !== null && list().count === 8, 10000);
        compare(item("Catalog"), null);
    }

    function test_anEmptyNarrowWindowOffersTheFirstStep() {
        beginBrowse(900);
        tryVerify(() => button("Fetch All") !== null && named("Load") !== null);
        compare(button("Load Cached All"), null);
        press("Fetch All");
        shows("Could Not Load Catalog");
        stage.cacheFormulae();
        stage.cacheCasks();
        press("Load Cached All");
        tryVerify(() => list() !== null && list().count === 10);
        compare(button("Fetch All"), null);
    }

    function test_aLargeWindowOffersItOnce() {
        beginBrowse();
        compare(spoken().filter(item => item.Accessible.name === "Fetch All").length, 1);
    }

    function test_escapeClosesTheMenu() {
        beginBrowse(900);
        tryVerify(() => named("Load") !== null);
        named("Load").clicked();
        tryVerify(() => item("Catalog") !== null);
        keyClick(Qt.Key_Escape);
        tryVerify(() => item("Catalog") === null);
    }
}
