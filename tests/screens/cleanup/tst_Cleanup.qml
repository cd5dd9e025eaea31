import QtQuick
import QtTest
import "../../support/window"

InventoryTestCase {
    id: root

    name: "Cleanup"
    section: 4

    function test_eachStateOffersWhatItCan_data() {
        return [{tag: "idle", title: "Scan For Cleanup Guidance",
                 text: "Select a Homebrew prefix before deriving cleanup guidance.",
                 actions: ["Select Homebrew Prefix", "Scan Read-Only Inventory"]},
                {tag: "idle-prefix", title: "Scan For Cleanup Guidance",
                 text: /^Selected prefix: /, actions: ["Scan Read-Only Inventory"]},
                {tag: "access", title: "Local Access Needed",
                 text: "Cleanup guidance needs read-only local inventory. Quillmere Direct can run cleanup only after showing the command and asking for stronger confirmation.",
                 actions: ["Select Homebrew Prefix"]},
                {tag: "away", title: "Local Access Needed",
                 text: /^Selected prefix: .*\. There is no such folder at the moment\.$/,
                 actions: ["Scan Again", "Select Homebrew Prefix"]},
                {tag: "scanning",
                 title: "Scanning installed packages before deriving cleanup guidance...",
                 text: "130 of 412 packages scanned", actions: ["Cancel"]},
                {tag: "failed", title: "Could Not Derive Cleanup Guidance",
                 text: "Local inventory could not be scanned: The folder cannot be listed: Permission denied",
                 actions: ["Scan Again", "Check Prefix"]},
                {tag: "current", title: "Cleanup Guidance",
                 text: "No old formula or cask versions were detected in the latest read-only scan.",
                 actions: ["Scan Again", "Preview cleanup command"]},
                {tag: "review", title: "Cleanup Guidance",
                 text: "Detected 1 older installed version across 1 package.",
                 actions: ["Scan Again", "Preview cleanup command"]}];
    }

    function test_eachStateOffersWhatItCan(data) {
        show(data.tag);
        shows(data.title);
        showsText(data.text);
        compare(buttons(), data.actions);
    }

    function test_whatIsScannedIsDatedBeforeTheScan() {
        show("idle");
        shows("Local inventory unavailable. Scan local inventory when ready.");
    }

    function test_theGuidanceIsReadInOrder() {
        stage.fillCache(1340000);
        show("updates");
        shows("Estimated size: 1.3 MB");
        const all = spoken().map(item => item.Accessible.name).filter(name => name.length > 0);
        const from = all.indexOf("What Cleanup Does");
        compare(all.slice(from).filter((name, index, list) => name !== list[index - 1]),
                ["What Cleanup Does",
                 "`brew cleanup` asks Homebrew to remove old downloads, cached files, and package versions Homebrew considers no longer needed.",
                 "Review the command before copying or running it. Continue only if you are comfortable with Homebrew removing files.",
                 "Old Versions", "Detected 4 older installed versions across 3 packages.",
                 "Old Versions",
                 "curl, Formula, current 8.9.1, older versions 8.4.0",
                 "llvm, Formula, current 19.1.0, older versions 17.0.6, 18.1.8",
                 "openssl@3, Formula, current 3.3.1, older versions 3.2.0",
                 "Cache", "Location: " + stage.prefix.toString().replace("file://", "") + "/var/homebrew/cache",
                 "Estimated size: 1.3 MB", "Command Preview",
                 "Preview the exact cleanup command before copying or running it. Quillmere Direct records completed executions in local History.",
                 "Preview cleanup command"]);
    }

    function test_cleanupIsPreviewedByKeyboard() {
        show("updates");
        const preview = button("Preview cleanup command");
        compare(preview.text, "Preview Cleanup");
        compare(preview.Accessible.description, "Opens a command preview where Quillmere Direct can run cleanup after stronger confirmation.");
        button("Scan Again").forceActiveFocus();
        for (let i = 0; i < 10 && !preview.activeFocus; ++i)
            keyClick(Qt.Key_Tab);
        verify(preview.activeFocus);
        const middle = preview.mapToItem(window.contentItem, 0, preview.height / 2).y;
        verify(middle > 0 && middle < window.height, "the button is not in view");
        keyClick(Qt.Key_Return);
        shows("Asks Homebrew to remove old downloads and outdated package versions.");
    }

    function test_manyOldVersionsCostNoMoreRowsThanAreSeen() {
        show("many");
        shows("Detected 5000 older installed versions across 5000 packages.");
        const rows = () => spoken().filter(item => item.Accessible.role === Accessible.ListItem
                                                   && /^package-/.test(item.Accessible.name));
        verify(rows().length < 60, rows().length);
        compare(rows()[0].Accessible.name,
                "package-10000, Formula, current 1.10000_1, older versions 1.10000");
        button("Preview cleanup command").forceActiveFocus();
        tryVerify(() => rows().some(row => row.Accessible.name.startsWith("package-14999,")));
        verify(rows().length < 60, rows().length);
    }

    function test_theEndOfAScanIsAnnounced() {
        show("scanning");
        stage.showInventory("review");
        announces("Scan finished. Detected 1 older installed version across 1 package.");
        stage.showInventory("scanning");
        stage.showInventory("failed");
        announces("Could Not Derive Cleanup Guidance. Local inventory could not be scanned: The folder cannot be listed: Permission denied");
    }
}
