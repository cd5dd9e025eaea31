import QtQuick
import QtTest
import "../../support/window"

PackageDetailTestCase {
    id: root

    name: "PackageValues"

    function test_theHomepageIsHandedToTheBrowser() {
        open("formula");
        press("Open Homepage");
        compare(stage.openedUrl.toString(), "https://www.gnu.org/software/wget/");
    }

    function test_aBrowserThatDoesNotStartIsReported() {
        stage.breakBrowser();
        open("formula");
        press("Open Homepage");
        announces("No browser could be opened. Copy the address instead.");
    }

    function test_onlyAddressesForABrowserAreOffered_data() {
        return [{tag: "cask"}, {tag: "bare"}];
    }

    function test_onlyAddressesForABrowserAreOffered(data) {
        open(data.tag);
        compare(button("Open Homepage"), null);
    }

    function test_valuesCanBeCopied_data() {
        return [{tag: "wget", text: "wget"}, {tag: "Latest known: 1.25.0", text: "1.25.0"},
                {tag: "Homepage: https://www.gnu.org/software/wget/",
                 text: "https://www.gnu.org/software/wget/"},
                {tag: "License: GPL-3.0-or-later", text: "GPL-3.0-or-later"},
                {tag: "Installed version: 1.24.5, 1.25.0", text: "1.24.5, 1.25.0"}];
    }

    function test_valuesCanBeCopied(data) {
        open("installed");
        named(data.tag).forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        keyClick(Qt.Key_C, Qt.ControlModifier);
        compare(stage.clipboard(), data.text);
    }

    function test_theKeyboardPassesWhatHasNoValue() {
        open("bare");
        button("Back").forceActiveFocus();
        keyClick(Qt.Key_Tab);
        compare(window.activeFocusItem.Accessible.name, "bare");
        keyClick(Qt.Key_Tab);
        compare(window.activeFocusItem.Accessible.name, "Preview Info command");
    }

    function test_aTagLeadsToItsFormula() {
        open("formula");
        compare(named("libidn2").Accessible.role, Accessible.Button);
        mouseClick(named("libidn2"));
        compare(stage.wantedFormula, "libidn2");
        named("gettext").Accessible.pressAction();
        compare(stage.wantedFormula, "gettext");
    }

    function test_theArrowKeysGoFromTagToTag() {
        open("many");
        named("dependency-1").forceActiveFocus();
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Left);
        keyClick(Qt.Key_Up);
        compare(window.activeFocusItem.Accessible.name, "dependency-1");
        keyClick(Qt.Key_Up);
        compare(window.activeFocusItem.Accessible.name, "dependency-1");
        keyClick(Qt.Key_End);
        keyClick(Qt.Key_Return);
        compare(stage.wantedFormula, "dependency-61");
        // All of them together are one stop.
        keyClick(Qt.Key_Tab);
        compare(window.activeFocusItem.Accessible.name, "python-dependant-1");
        keyClick(Qt.Key_Tab);
        compare(window.activeFocusItem.Accessible.name, "Preview Info command");
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        compare(window.activeFocusItem.Accessible.name, "python-dependant-1");
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        compare(window.activeFocusItem.Accessible.name, "dependency-61");
    }

    function test_hundredsOfDependantsAreAllThere() {
        stage.content.selectIndex(2);
        stage.openPackage("many");
        shows("python-dependant-1");
        named("python-dependant-1").forceActiveFocus();
        keyClick(Qt.Key_End);
        const last = named("python-dependant-745");
        verify(last.activeFocus);
        tryVerify(() => last.mapToItem(null, 0, last.height).y < window.height);
        verify(last.mapToItem(null, 0, 0).y > 0);
        keyClick(Qt.Key_Return);
        compare(stage.wantedFormula, "python-dependant-745");
        keyClick(Qt.Key_Home);
        tryVerify(() => named("python-dependant-1") && named("python-dependant-1").activeFocus);
    }

    function test_ofHundredsOnlyThoseInViewAreMade() {
        open("many");
        verify(spoken().filter(item => item.Accessible.name.startsWith("python-dependant-")).length
               < 100);
        verify(named("python-dependant-745") === null);
    }

    function test_longTextsStayInTheWindow_data() {
        return [{tag: "long"}, {tag: "right-to-left"}];
    }

    function test_longTextsStayInTheWindow(data) {
        open(data.tag);
        for (const item of spoken()) {
            const end = item.mapToItem(window.contentItem, item.width, 0).x;
            verify(end <= window.width + 1, item.Accessible.name);
        }
    }
}
