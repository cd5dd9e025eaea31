import QtQuick
import "../../support/window"

WindowTestCase {
    id: root

    name: "CommandPreview"

    function test_servicesOpenThePreviewAndEscapeClosesIt() {
        stage.content.selectIndex(5);
        const opener = button("Preview services list command");
        opener.forceActiveFocus();
        keyClick(Qt.Key_Space);
        shows("brew services list");
        keyClick(Qt.Key_Escape);
        tryCompare(stage.content.commands, "preview", null);
        hides("brew services list");
        tryCompare(opener, "activeFocus", true);
    }

    function test_returnCopiesTheCommandAndTwiceRecordsTwo() {
        stage.content.services.previewServicesList();
        shows("brew services list");
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Return);
        compare(stage.clipboard(), "brew services list");
        compare(stage.historyCount(), 2);
    }

    function test_aCommandRunsFromTheSelectedPrefixAndIsRecordedOnce() {
        stage.selectPrefix();
        stage.content.services.previewServicesList();
        press("Run Command");
        shows("Found 3 services");
        shows("Completed with exit code 0");
        press("Show command-line output");
        shows("Command-line output");
        press("Close");
        tryCompare(stage.content.commands, "preview", null);
        compare(stage.historyCount(), 1);
    }

    function test_withoutAPrefixTheCommandCannotRun() {
        stage.content.services.previewServicesList();
        press("Run Command");
        shows("Cannot Run Command");
        shows("Select a Homebrew prefix before running commands.");
        keyClick(Qt.Key_Escape);
        hides("Cannot Run Command");
        verify(button("Copy Command"));
    }

    function test_anUninstallOffersNoRun() {
        stage.previewUninstall();
        tryVerify(() => button("Copy Command") !== null);
        compare(button("Run Command"), null);
    }

    function test_theUpgradeOfEverythingAsksAndItsCancelChangesNothing() {
        stage.selectPrefix();
        stage.previewUpgrade();
        press("Run Command");
        tryVerify(() => button("Confirm brew upgrade") !== null);
        keyClick(Qt.Key_Escape);
        tryVerify(() => button("Confirm brew upgrade") === null);
        verify(button("Run Command"));
        compare(stage.historyCount(), 0);
    }
}
