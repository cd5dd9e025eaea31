import QtQuick
import QtTest

WindowCase {
    id: root

    name: "Updates"

    function show(scene) {
        stage.selectPrefix();
        stage.content.selectIndex(3);
        stage.showInventory(scene);
        verify(waitForRendering(window.contentItem));
    }

    // Every button that can be seen, in reading order.
    function buttons() {
        return spoken().filter(item => item.Accessible.role === Accessible.Button)
                       .map(item => item.Accessible.name);
    }

    function test_eachStateOffersWhatItCan_data() {
        return [{tag: "idle", title: "Scan For Updates",
                 text: "Select a Homebrew prefix before deriving update guidance.",
                 actions: ["Scan Read-Only Inventory", "Refresh Catalog", "Run brew update"]},
                {tag: "access", title: "Local Access Needed",
                 text: "Update guidance needs read-only local inventory plus latest-known public catalog metadata. Quillmere Direct can run approved update and upgrade commands after prefix selection and required confirmation.",
                 actions: ["Select Homebrew Prefix", "Browse Catalog Instead"]},
                {tag: "scanning",
                 title: "Scanning installed packages before deriving update guidance...",
                 text: "130 of 412 packages scanned", actions: ["Cancel"]},
                {tag: "failed", title: "Could Not Derive Updates",
                 text: "Local inventory could not be scanned: The folder cannot be listed: Permission denied",
                 actions: ["Scan", "Run brew update"]},
                {tag: "current", title: "No Updates Found",
                 text: "All comparable installed packages match the latest-known catalog versions. This is based on cached/public metadata, not live brew output.",
                 actions: ["Scan Again", "Run brew update", "Browse Catalog",
                           "Scan Again", "Run brew update", "Refresh Catalog"]},
                {tag: "review", title: "No Comparable Updates Found",
                 text: "No comparable outdated packages were found. 1 package have missing, newer, or non-comparable version data.",
                 actions: ["Scan Again", "Run brew update", "Browse Catalog",
                           "Scan Again", "Run brew update", "Refresh Catalog",
                           "Preview upgrade command for own-tool"]}];
    }

    function test_eachStateOffersWhatItCan(data) {
        show(data.tag);
        shows(data.title);
        shows(data.text);
        compare(buttons(), data.actions);
    }

    function test_whatIsScannedForIsDatedBeforeTheScan() {
        show("idle");
        shows("Latest-known catalog metadata unavailable. Refresh catalog metadata when ready.");
    }

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

    function test_theUpdateOfHomebrewIsPreviewed() {
        show("updates");
        press("Run brew update");
        shows("brew update");
    }

    function test_theCatalogIsWhereItIsRefreshed() {
        show("current");
        press("Refresh Catalog");
        compare(stage.content.selectedSection, "browse");
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

    function test_theEndOfAScanIsAnnounced() {
        show("scanning");
        shows("130 of 412 packages scanned");
        stage.showInventory("updates");
        announces("Scan finished. 3 updates, 3 need review");
        stage.showInventory("scanning");
        stage.showInventory("failed");
        announces("Could Not Derive Updates. Local inventory could not be scanned: The folder cannot be listed: Permission denied");
    }

    function test_aScanCanBeStoppedByKeyboard() {
        show("scanning");
        const spy = createTemporaryObject(spyMaker, root, {target: stage.content.updates,
                                                           signalName: "cancelScanWanted"});
        button("Cancel").forceActiveFocus();
        keyClick(Qt.Key_Space);
        compare(spy.count, 1);
    }

    function test_aScanThatIsWantedIsMade() {
        show("idle-prefix");
        press("Scan Read-Only Inventory");
        showsLike(/ need review$/);
        verify(button("Scan Again"));
    }

    Component {
        id: spyMaker

        SignalSpy {
        }
    }
}
