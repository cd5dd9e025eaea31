import QtQuick
import QtTest
import "../../support/window"

InventoryTestCase {
    id: root

    name: "Updates"
    section: 3

    function test_eachStateOffersWhatItCan_data() {
        return [{tag: "idle", title: "Scan For Updates",
                 text: "Select a Homebrew prefix before deriving update guidance.",
                 actions: ["Select Homebrew Prefix", "Scan Read-Only Inventory",
                           "Refresh Catalog", "Run brew update"]},
                {tag: "idle-prefix", title: "Scan For Updates", text: /^Selected prefix: /,
                 actions: ["Scan Read-Only Inventory", "Refresh Catalog", "Run brew update"]},
                {tag: "access", title: "Local Access Needed",
                 text: "Update guidance needs read-only local inventory plus latest-known public catalog metadata. Quillmere Direct can run approved update and upgrade commands after prefix selection and required confirmation.",
                 actions: ["Select Homebrew Prefix", "Browse Catalog Instead"]},
                {tag: "away", title: "Local Access Needed",
                 text: /^Selected prefix: .*\. There is no such folder at the moment\.$/,
                 actions: ["Scan Again", "Select Homebrew Prefix", "Browse Catalog Instead"]},
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
        showsText(data.text);
        compare(buttons(), data.actions);
    }

    function test_whatIsScannedForIsDatedBeforeTheScan() {
        show("idle");
        shows("Latest-known catalog metadata unavailable. Refresh catalog metadata when ready.");
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
                                                           signalName: "cancelScanRequested"});
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
