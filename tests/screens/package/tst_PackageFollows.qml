import QtQuick
import "../../support/window"

PackageListTestCase {
    id: root

    name: "PackageFollows"

    function open(row) {
        list().forceActiveFocus();
        list().currentIndex = row;
        keyClick(Qt.Key_Return);
    }

    function rowOf(model, pattern) {
        for (let row = 0; row < list().count; ++row) {
            list().positionViewAtIndex(row, ListView.Contain);
            if (pattern.test(list().itemAtIndex(row).accessibleName))
                return row;
        }
        return -1;
    }

    function test_aPageFromBrowseFollowsAScan() {
        loadCatalog();
        open(rowOf(list(), /^wget,/));
        shows("Installed version: Not installed or unknown");
        shows("Local source: No local package record");
        showsLike(/^Local inventory unavailable\./);
        stage.selectPrefix();
        stage.content.installed.scanRequested();
        hides("Installed version: Not installed or unknown");
        shows("Local source: Installed on request");
        showsLike(/^Local inventory fresh: /);
        stage.resetPrefix();
        shows("Local source: No local package record");
    }

    function test_aPageFromInstalledFollowsTheCatalog() {
        scan();
        open(rowOf(list(), /^openssl@3,/));
        showsLike(/^Reverse dependency data is unavailable from the installed-only scan\./);
        stage.serveCatalog();
        stage.content.browse.fetchAll();
        showsLike(/^Formulae in the loaded catalog that list/);
        shows("A newer catalog was fetched since this scan");
    }
}
