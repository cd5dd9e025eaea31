import QtQuick
import "../../support/window"

PackageListTestCase {
    id: root

    name: "FailedFetch"

    function test_aFetchThatFailsOverACacheSaysSoUntilTheNext() {
        const failure = "The catalog could not be fetched. Homebrew returned HTTP status 404. The cached catalog is shown.";
        stage.cacheFormulae();
        stage.cacheCasks();
        beginBrowse();
        press("Fetch All");
        tryVerify(isListed, 10000);
        shows(failure);
        announces(failure + " Showing 10 of 10 packages");
        showsLike(/^Catalog fresh: /);
        stage.serveCatalog();
        press("Try Again");
        hides(failure);
        tryVerify(isListed, 10000);
        compare(button("Try Again"), null);
    }
}
