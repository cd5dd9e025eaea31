import QtQuick
import QtTest
import "../support/window"

// What a catalog or a prefix holds is shown, whatever it is: on one line, the way it is written, and
// without asking anybody for anything.
PackageListTestCase {
    id: root

    name: "Hostile"

    // Control characters and those that turn the direction of a text.
    readonly property var illegible: /[\u0000-\u001f\u007f-\u009f\u2028-\u202e\u2066-\u2069]/

    function everyTextIsLegible(place) {
        for (const item of spoken()) {
            const text = item.Accessible.name;
            verify(!illegible.test(text), place + " shows " + JSON.stringify(text.slice(0, 200)));
            verify(text.length < 10000, place + " shows " + text.length + " characters");
        }
    }

    // The button may have left the view.
    function goBack() {
        keyClick(Qt.Key_Escape);
        tryVerify(() => list() !== null);
    }

    function loadHostileCatalog() {
        beginBrowse();
        stage.serveHostileCatalog();
        press("Fetch All");
        tryVerify(() => list() !== null && list().itemAtIndex(0) !== null, 60000);
    }

    // What is copied is what is shown, and a shell takes each of its words for itself.
    function copyIsWhatIsShown(preview) {
        // It may lie far below what is in view.
        button(preview).forceActiveFocus();
        keyClick(Qt.Key_Space);
        tryVerify(() => button("Copy Command") !== null);
        everyTextIsLegible(preview);
        press("Copy Command");
        verify(/^brew [a-z]+( --cask)? [A-Za-z0-9][A-Za-z0-9@._+\/-]*$/.test(stage.clipboard()),
               stage.clipboard());
        shows(stage.clipboard());
        press("Cancel");
        hides(stage.clipboard());
    }

    function test_aCatalogIsShownAsPlainText() {
        loadHostileCatalog();
        const rows = list().count;
        verify(rows > 60);
        for (let row = 0; row < rows; ++row) {
            list().positionViewAtIndex(row, ListView.Contain);
            everyTextIsLegible("row " + row);
            list().choose(row);
            tryVerify(() => button("Back") !== null);
            wait(20);
            everyTextIsLegible("page " + row);
            // Only the tokens of the casks and one formula are names.
            if (button("Preview Info command") === null)
                shows("Command previews are unavailable because this package identifier is not recognized.");
            else if (row % 10 === 1 || row === rows - 1)
                copyIsWhatIsShown("Preview Uninstall command");
            goBack();
        }
        verify(stage.historyCount() > 2);
        wait(200);
        compare(stage.baitVisits, 0);
    }

    function test_aHomepageThatIsNoPageOfTheWebIsNotOpened() {
        loadHostileCatalog();
        let offered = 0;
        for (let row = 0; row < 7; ++row) {
            list().choose(row);
            tryVerify(() => button("Back") !== null);
            const homepage = spoken().find(item => /^Homepage: /.test(item.Accessible.name));
            const isPage = /^Homepage: https?:\/\/[^@]*$/.test(homepage.Accessible.name);
            compare(button("Open Homepage") !== null, isPage, homepage.Accessible.name);
            offered += isPage ? 1 : 0;
            goBack();
        }
        compare(offered, 2);
        compare(stage.baitVisits, 0);
    }

    function test_aSearchFindsWhatIsNotShown() {
        loadHostileCatalog();
        search("www");
        tryVerify(() => list() !== null && list().count < 10);
        everyTextIsLegible("the search");
    }

    function test_aHistoryIsShownAsPlainText() {
        stage.addHostileHistory();
        stage.content.selectIndex(6);
        showsLike(/^Command brew info wget\ufffdgpj.exe, operation info, target wget\ufffdgpj.exe, /);
        everyTextIsLegible("History");
        compare(stage.baitVisits, 0);
    }

    function test_foldersAreShownAsPlainText() {
        stage.makeHostileFolders();
        scan();
        compare(list().count, 12);
        for (let row = 0; row < list().count; ++row) {
            list().positionViewAtIndex(row, ListView.Contain);
            everyTextIsLegible("row " + row);
            list().choose(row);
            tryVerify(() => button("Back") !== null);
            everyTextIsLegible("page " + row);
            goBack();
        }
        for (let section = 0; section < 9; ++section) {
            stage.content.selectIndex(section);
            wait(50);
            everyTextIsLegible("section " + section);
        }
    }

    // The bait is one: markup that is taken for such does fetch.
    function test_markupWouldBeSeen() {
        const text = Qt.createQmlObject("import QtQuick; Text { textFormat: Text.RichText }",
                                        window.contentItem);
        text.text = "<img src='" + stage.bait + "'>";
        tryVerify(() => stage.baitVisits > 0, 10000);
        text.destroy();
    }
}
