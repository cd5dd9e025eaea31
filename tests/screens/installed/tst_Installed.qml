import QtQuick
import "../../support/window"

PackageListTestCase {
    id: root

    name: "Installed"

    readonly property string wget: "wget, installed 1.25.0"

    function test_withoutAPrefixTheScreenAsksForAccessAndOffersNoScan() {
        beginInstalled();
        shows("Local Access Needed");
        shows("Installed packages require access to your selected Homebrew prefix. Quillmere scans local package metadata without writing to Homebrew files.");
        verify(button("Select Homebrew Prefix"));
        compare(button("Scan Read-Only Inventory"), null);
        compare(button("Scan Again"), null);
        press("Browse Catalog Instead");
        compare(stage.content.selectedSection, "browse");
    }

    function test_aSelectedPrefixIsScannedOnRequest() {
        stage.selectPrefix();
        beginInstalled();
        shows("Scan Installed Packages");
        shows("Selected prefix: " + stage.content.settings.prefixSelection.selectedPath
              + ". Scan local formula and cask directories in read-only mode.");
        press("Scan Read-Only Inventory");
        tryVerify(() => list() !== null && list().count === 3, 10000);
        shows("Local inventory");
        showsLike(/^Inventory fresh: /);
        verify(/^Showing 3 of 3 packages - Inventory fresh /.test(list().Accessible.name));
        shows("firefox, installed 142.0");
        shows(wget);
        announces("Showing 3 of 3 packages");
    }

    function test_latestVersionsComeFromTheCachedCatalog() {
        stage.cacheFormulae();
        tryVerify(() => stage.content.browse.hasCachedFormulae);
        scan();
        shows("openssl@3, installed 3.5.0, latest known 3.6.0, source homebrew/core");
    }

    function test_aScanShowsHowFarItHasComeAndIsStopped() {
        stage.selectPrefix();
        beginInstalled();
        stage.holdThreads();
        press("Scan Read-Only Inventory");
        shows("Scanning selected Homebrew prefix...");
        announces("Scanning selected Homebrew prefix...");
        press("Cancel");
        shows("Scan Installed Packages");
        stage.releaseThreads();
        stage.showScan(30, 120);
        shows("30 of 120 packages scanned");
        const bar = spoken().find(item => item.Accessible.role === Accessible.ProgressBar);
        compare(bar.value, 0.25);
        verify(!bar.indeterminate);
    }

    function test_aScanThatFailsSaysWhyAndWhatToDo() {
        stage.selectPrefix();
        beginInstalled();
        stage.failScan();
        shows("Could Not Scan Installed Packages");
        shows("Local inventory could not be scanned: No.");
        announces("Could Not Scan Installed Packages. Local inventory could not be scanned: No.");
        tryVerify(() => button("Check Prefix").x > button("Scan Again").x);
        press("Scan Again");
        tryVerify(() => list() !== null, 10000);
    }

    function test_aPrefixWithoutPackagesLeadsToTheCatalog() {
        stage.selectEmptyFolder();
        beginInstalled();
        press("Scan Read-Only Inventory");
        shows("No Installed Packages Found");
        shows("Quillmere did not find readable formulae or casks in the selected prefix. Catalog browsing is still available.");
        announces("No Installed Packages Found");
        verify(button("Scan Again"));
        press("Browse Catalog");
        compare(stage.content.selectedSection, "browse");
    }
}
