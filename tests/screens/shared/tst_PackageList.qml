import QtQuick
import "../../support/window"

PackageListTestCase {
    id: root

    name: "PackageList"

    readonly property string wget: "wget, Formula, version 1.25.0, Internet file retriever"

    function test_theListIsUsedByKeyboardAlone() {
        stage.showCatalogOf(500);
        beginBrowse();
        stage.showCatalogOf(500);
        tryVerify(() => list() !== null && list().count === 250);
        list().forceActiveFocus(Qt.TabFocusReason);
        verify(list().currentItem.activeFocus);
        keyClick(Qt.Key_Down);
        compare(list().currentIndex, 1);
        keyClick(Qt.Key_PageDown);
        const paged = list().currentIndex;
        verify(paged > 5);
        verify(list().currentItem.activeFocus);
        keyClick(Qt.Key_PageUp);
        compare(list().currentIndex, 1);
        keyClick(Qt.Key_End);
        compare(list().currentIndex, 249);
        verify(list().contentY > 0);
        keyClick(Qt.Key_PageDown);
        compare(list().currentIndex, 249);
        keyClick(Qt.Key_Home);
        compare(list().currentIndex, 0);
        keyClick(Qt.Key_PageUp);
        compare(list().currentIndex, 0);
    }

    function test_eachRowIsRead() {
        beginBrowse();
        stage.showCatalogOf(500);
        tryVerify(() => list() !== null && list().count === 250);
        readsEachRow(list());
    }

    function test_theKeysMoveUnderThePointerToo() {
        beginBrowse();
        stage.showCatalogOf(500);
        tryVerify(() => list() !== null && list().count === 250);
        mouseMove(list(), 50, 50);
        tryVerify(() => !list().interactive);
        list().forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        compare(list().currentIndex, 1);
        keyClick(Qt.Key_Up);
        compare(list().currentIndex, 0);
    }

    function isInView(row: Item): bool {
        return row !== null && row.y >= list().contentY && row.y + row.height <= list().contentY + list().height;
    }

    function test_searchAndPlaceSurviveADetail() {
        beginBrowse();
        stage.showCatalogOf(500);
        search("lib");
        tryVerify(() => list() !== null && list().count > 60);
        list().forceActiveFocus(Qt.TabFocusReason);
        for (let i = 0; i < 5; ++i)
            keyClick(Qt.Key_PageDown);
        tryVerify(() => list().contentY > 0 && isInView(list().currentItem) && !isPolishScheduled(list()));
        const place = list().contentY;
        const index = list().currentIndex;
        keyClick(Qt.Key_Return);
        tryVerify(() => stage.content.details.current !== null);
        hides("Browse Catalog");
        stage.content.details.back();
        shows("Browse Catalog");
        compare(list().contentY, place);
        compare(list().currentIndex, index);
        compare(field().text, "lib");
        verify(list().currentItem.activeFocus);
        keyClick(Qt.Key_Down);
        compare(list().currentIndex, index + 1);
    }

    function test_aClickAnywhereInARowOpensIt() {
        loadCatalog();
        const row = named(wget);
        verify(row.height >= 44 && row.height <= 56);
        mouseClick(row, row.width - 3, row.height - 3);
        tryVerify(() => stage.content.details.current !== null);
    }

    function test_aRowIsOpenedByItsPressAction() {
        loadCatalog();
        named(wget).Accessible.pressAction();
        verify(stage.content.details.current !== null);
    }

    function test_aDependencyLeadsToItsDetailAndBack() {
        loadCatalog();
        named(wget).Accessible.pressAction();
        button("openssl@3").Accessible.pressAction();
        compare(stage.content.details.current.name, "openssl@3");
        press("Back");
        compare(stage.content.details.current.name, "wget");
        tryVerify(() => button("own-tool") !== null);
        button("own-tool").Accessible.pressAction();
        compare(stage.content.details.current.name, "wget");
        shows("own-tool is not in the loaded catalog.");
        announces("own-tool is not in the loaded catalog.");
    }

    function test_aDependencyLeadsNowhereWithoutACatalog() {
        scan();
        named(list().currentItem.accessibleName).Accessible.pressAction();
        tryVerify(() => stage.content.details.current !== null);
        verify(!stage.content.details.current.canOpenDetailItems);
    }

    function test_aPackageThatAScanDidNotFindSaysSo() {
        loadCatalog();
        named(wget).Accessible.pressAction();
        shows("Local source: No local package record");
        stage.content.details.back();
        scan();
        stage.content.selectIndex(2);
        const ffmpeg = "ffmpeg, Formula, version 8.0.1, Play, record, convert, and stream audio and video";
        shows(ffmpeg);
        named(ffmpeg).Accessible.pressAction();
        shows("Local source: Not found in local scan");
    }

    function test_tabGoesFromTheSearchToTheTypeToTheList() {
        loadCatalog();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        keyClick(Qt.Key_Tab);
        verify(button("Search packages").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(radio("All").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(list().currentItem.activeFocus);
    }
}
