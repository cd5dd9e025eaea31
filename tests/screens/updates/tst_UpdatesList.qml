import QtQuick
import QtTest
import "../../support/window"

InventoryTestCase {
    id: root

    name: "UpdatesList"
    section: 3

    function test_updatesStandAboveWhatNeedsReview() {
        show("updates");
        shows("3 updates");
        shows("3 need review");
        const names = spoken().filter(item => [Accessible.ListItem, Accessible.Heading]
                                              .includes(item.Accessible.role))
                              .map(item => item.Accessible.name);
        compare(names.slice(names.indexOf("Outdated")),
                ["Outdated",
                 "Firefox, Cask, Update available, installed 131.0, latest known 132.0.2, tap homebrew/cask",
                 "openssl@3, Formula, Update available, installed 3.3.1, latest known 3.4.0, tap homebrew/core",
                 "wget, Formula, Update available, installed 1.24.5, latest known 1.25.0, tap homebrew/core",
                 "Needs Review",
                 "Google Chrome, Cask, Not comparable, installed latest, latest known latest, tap homebrew/cask",
                 "llvm, Formula, Newer than latest-known, installed 19.1.0, latest known 18.1.8, tap homebrew/core",
                 "own-tool, Formula, Unknown, installed 0.3, latest known unknown, tap homebrew/core"]);
    }

    function test_theUpgradeOfARowIsPreviewed() {
        show("updates");
        press("Preview upgrade command for Firefox");
        shows("brew upgrade --cask firefox");
    }

    function test_anUpgradeTellsWhatItDoes() {
        show("updates");
        const upgrade = button("Preview upgrade command for wget");
        compare(upgrade.text, "Preview Upgrade");
        compare(upgrade.Accessible.description, "Opens a command preview where Quillmere Direct can run the upgrade after confirmation.");
    }

    function test_theKeyboardGoesThroughTheList() {
        show("updates");
        button("Browse Catalog").forceActiveFocus();
        keyClick(Qt.Key_Tab);
        tryVerify(() => button("Preview upgrade command for Firefox").activeFocus);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        verify(button("Preview upgrade command for wget").activeFocus);
        keyClick(Qt.Key_Up);
        verify(button("Preview upgrade command for openssl@3").activeFocus);
        keyClick(Qt.Key_Return);
        shows("brew upgrade openssl@3");
        keyClick(Qt.Key_Escape);
        tryVerify(() => button("Preview upgrade command for openssl@3").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(!window.activeFocusItem.Accessible.name.startsWith("Preview upgrade"));
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        verify(button("Preview upgrade command for openssl@3").activeFocus);
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        verify(button("Browse Catalog").activeFocus, window.activeFocusItem);
    }

    function test_manyPackagesCostNoMoreRowsThanAreSeen() {
        show("many");
        shows("2500 updates");
        verify(buttons().length < 40, buttons().length);
    }
}
