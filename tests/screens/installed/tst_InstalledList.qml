import QtQuick
import "../../support/window"

PackageListTestCase {
    id: root

    name: "InstalledList"

    readonly property string wget: "wget, installed 1.25.0"

    function test_noMatchOffersToClearTheSearch() {
        scan();
        search("nothing is called so");
        shows("No Installed Packages Match");
        shows("Try a different search term or package type filter.");
        press("Clear Search");
        compare(field().text, "");
        verify(field().activeFocus);
        compare(list().count, 3);
    }

    function test_theTypeNarrowsTheList() {
        scan();
        radio("All").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        compare(list().count, 2);
        keyClick(Qt.Key_Right);
        compare(list().count, 1);
        shows("firefox, installed 142.0");
    }

    function test_theSearchHasItsOwnPrompt() {
        scan();
        compare(field().parent.placeholder, "Search installed packages");
        compare(field().Accessible.name, "Package search");
    }

    function test_aSearchNarrowsTheListByKeyboardAlone() {
        scan();
        search("WGET");
        compare(list().count, 1);
        for (let i = 0; i < 3; ++i)
            keyClick(Qt.Key_Tab);
        verify(list().currentItem.activeFocus);
        compare(currentRow(), wget);
        keyClick(Qt.Key_Return);
        tryVerify(() => stage.content.details.current !== null);
        stage.content.details.back();
        shows("Local inventory");
        compare(field().text, "WGET");
        verify(list().currentItem.activeFocus);
    }

    function test_rowsShowBothVersionsAtAnyLength() {
        stage.selectPrefix();
        beginInstalled();
        window.width = 900;
        stage.showInventory();
        tryVerify(() => list() !== null && list().itemAtIndex(4) !== null);
        for (let i = 0; i < 5; ++i) {
            const row = list().itemAtIndex(i);
            verify(row.height >= 44 && row.height <= 56);
            compare(row.width, list().width);
        }
    }

    function test_aListIsScannedAgain() {
        scan();
        press("Scan Again");
        tryVerify(() => list() !== null && list().count === 3, 10000);
    }
}
