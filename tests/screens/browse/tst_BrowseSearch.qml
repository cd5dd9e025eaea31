import QtQuick
import "../../support/window"

PackageListTestCase {
    id: root

    name: "BrowseSearch"

    readonly property string wget: "wget, Formula, version 1.25.0, Internet file retriever"

    function test_typingAloneSearchesNothing() {
        loadCatalog();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("wget");
        wait(20);
        compare(stage.content.browse.search.searchText, "");
        compare(list().count, 10);
        keyClick(Qt.Key_Return);
        compare(stage.content.browse.search.searchText, "wget");
        tryVerify(() => list() !== null && list().count === 1);
        shows(wget);
        announces("Showing 1 of 1 matches from 10 packages");
    }

    function test_theButtonSearchesToo() {
        loadCatalog();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("image");
        press("Search packages");
        compare(stage.content.browse.search.searchText, "image");
        compare(field().text, "image");
        tryVerify(() => list() !== null && list().count === 1);
    }

    function test_aTextThatIsBeingTypedIsNotTakenAway() {
        loadCatalog();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("wg");
        stage.content.browse.search.searchText = "curl";
        compare(field().text, "wg");
        keyClick(Qt.Key_Return);
        compare(stage.content.browse.search.searchText, "wg");
        stage.content.browse.search.searchText = "curl";
        compare(field().text, "curl");
    }

    function test_theSearchTellsWhatItIs() {
        loadCatalog();
        compare(field().Accessible.role, Accessible.EditableText);
        compare(field().Accessible.description, "Type a formula or cask search term, then press Return or choose Search.");
        compare(button("Search packages").text, "Search");
        compare(button("Search packages").Accessible.description, "Runs a package search using the current search field text.");
        const place = field().parent;
        compare(place.implicitHeight, 32);
        compare(button("Search packages").x - field().width, 8);
        compare(button("Search packages").x + button("Search packages").width, place.width);
    }

    function test_theTypeIsChosenByArrowKeys() {
        loadCatalog();
        compare(named("Package type").Accessible.role, Accessible.Grouping);
        verify(radio("All").Accessible.checked);
        radio("All").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Right);
        verify(radio("Casks").Accessible.checked);
        verify(radio("Casks").activeFocus);
        tryVerify(() => list() !== null && list().count === 2);
        keyClick(Qt.Key_Right);
        verify(radio("Casks").Accessible.checked);
        keyClick(Qt.Key_Left);
        verify(radio("Formulae").Accessible.checked);
        tryVerify(() => list() !== null && list().count === 8);
    }

    function test_theTypeIsChosenByMouseAndPressAction() {
        loadCatalog();
        mouseClick(radio("Casks"));
        tryVerify(() => list() !== null && list().count === 2);
        radio("All").Accessible.pressAction();
        tryVerify(() => list() !== null && list().count === 10);
    }

    function test_noMatchOffersToClearTheSearch() {
        loadCatalog();
        search("nothing is called so");
        shows("No Packages Found");
        shows("Try a different search term or package type filter.");
        announces("No Packages Found");
        press("Clear Search");
        compare(stage.content.browse.search.searchText, "");
        compare(field().text, "");
        verify(field().activeFocus);
        tryVerify(() => list() !== null && list().count === 10);
    }

    function test_aSearchThatTakesItsTimeSaysSo() {
        loadCatalog();
        stage.holdThreads();
        search("wget");
        compare(named("Searching packages..."), null);
        shows("Searching packages...");
        compare(button("Cancel"), null);
        stage.releaseThreads();
        tryVerify(() => list() !== null && list().count === 1);
        hides("Searching packages...");
    }
}
