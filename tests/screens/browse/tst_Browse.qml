import QtQuick
import "../../support/window"

PackageListTestCase {
    id: root

    name: "Browse"

    function test_withoutACatalogTheScreenAsksForOne() {
        beginBrowse();
        shows("Catalog unavailable. Refresh catalog metadata when ready. Browse does not require a selected Homebrew prefix.");
        shows("No Packages Found");
        shows("Fetch formulae or casks to populate Browse.");
        verify(!field().enabled);
        compare(button("Clear Search"), null);
    }

    function test_aFetchFillsTheList() {
        loadCatalog();
        verify(/^Showing 10 of 10 packages - Catalog fresh /.test(list().Accessible.name));
        shows("wget, Formula, version 1.25.0, Internet file retriever");
        shows("silent, Formula, unknown version");
        showsLike(/^Catalog fresh: .* Browse does not require a selected Homebrew prefix\.$/);
        announces("Showing 10 of 10 packages");
    }

    function test_whatBecomesStaleSaysSo() {
        beginBrowse();
        stage.letCatalogTurnStale();
        showsLike(/^Catalog stale: /);
    }

    function test_eachScopeIsFetched_data() {
        return [
            {tag: "Fetch Formulae", rows: 8},
            {tag: "Fetch Casks", rows: 2},
            {tag: "Fetch All", rows: 10},
        ];
    }

    function test_eachScopeIsFetched(data) {
        beginBrowse();
        stage.serveCatalog();
        press(data.tag);
        tryVerify(() => list() !== null && list().count === data.rows, 10000);
    }

    function test_aFetchThatFailsSaysWhy() {
        beginBrowse();
        press("Fetch All");
        shows("Could Not Load Catalog");
        verify(stage.content.browse.text.length > 0);
        shows(stage.content.browse.text);
        announces("Could Not Load Catalog. " + stage.content.browse.text);
        stage.serveCatalog();
        press("Fetch All");
        tryVerify(() => list() !== null, 10000);
    }

    function test_aFetchShowsHowFarItHasComeAndIsCancelled() {
        beginBrowse();
        stage.stallCatalog();
        press("Fetch All");
        shows("Fetching Homebrew package metadata...");
        tryCompare(stage.content.browse, "progressText", "500 bytes", 10000);
        shows("500 bytes");
        const bar = spoken().find(item => item.Accessible.role === Accessible.ProgressBar);
        compare(bar.Accessible.name, "Fetching Homebrew package metadata...");
        verify(bar.indeterminate);
        press("Cancel");
        shows("No Packages Found");
        hides("Fetching Homebrew package metadata...");
    }

    function test_whatIsCachedIsOffered() {
        beginBrowse();
        verify(!button("Load Cached All").enabled);
        compare(button("Load Cached All").Accessible.description, "Not available now.");
        verify(!button("Load Cached Formulae").enabled);
        verify(!button("Load Cached Casks").enabled);
        stage.cacheFormulae();
        tryVerify(() => button("Load Cached Formulae").enabled);
        compare(button("Load Cached Formulae").Accessible.description, "");
        verify(!button("Load Cached All").enabled);
        press("Load Cached Formulae");
        tryVerify(() => list() !== null && list().count === 8);
        stage.cacheCasks();
        tryVerify(() => button("Load Cached All").enabled);
        press("Load Cached All");
        tryVerify(() => list() !== null && list().count === 10);
        press("Load Cached Casks");
        tryVerify(() => list() !== null && list().count === 2);
    }
}
