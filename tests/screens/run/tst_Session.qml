import QtQuick
import QtTest
import "../../support/window"

// A run, from its start to its end, and to the end of the program.
SessionTestCase {
    id: root

    name: "Session"

    SignalSpy {
        id: quits

        signalName: "quitAllowed"
        target: stage.content ? stage.content.quitGuard : null
    }

    function test_theStartShowsWhatItWaitsForAndCanBeCancelled() {
        stage.selectPrefix();
        stage.holdDisk();
        stage.content.services.previewServicesList();
        press("Run Command");
        shows("Starting Direct Command");
        shows("Resolving Homebrew executable");
        compare(named("[quillmere] Resolving selected-prefix bin/brew."), null);
        press("Show Startup Diagnostics");
        shows("[quillmere] Resolving selected-prefix bin/brew.");
        press("Cancel");
        tryVerify(() => button("Run Command") !== null);
        compare(stage.content.commands.session, null);
    }

    function test_theEndOfARunIsAnnouncedAndTheKeyboardCanCloseIt() {
        stage.selectPrefix();
        stage.content.services.previewServicesList();
        press("Run Command");
        announces("Running");
        announces("Completed with exit code 0");
        tryVerify(() => button("Close").activeFocus);
        keyClick(Qt.Key_Space);
        tryCompare(stage.content.commands, "preview", null);
    }

    function test_aFailureComesWithTheNextStep() {
        const advice = "Another brew process is working on this. Wait until it has ended, then run the command again.";
        stage.lockPackages();
        stage.selectPrefix();
        stage.previewUpgrade();
        press("Run Command");
        press("Confirm brew upgrade");
        shows("Command exited with status 1.");
        shows(advice);
        announces("Failed: A `brew upgrade` process has already locked wget. " + advice);
    }

    function test_aRunThatMayChangeThePrefixOvertakesTheScan_data() {
        return [{tag: "installed", section: 1}, {tag: "updates", section: 3},
                {tag: "cleanup", section: 4}];
    }

    function test_aRunThatMayChangeThePrefixOvertakesTheScan(data) {
        const notice = "A command ran since this scan";
        stage.selectPrefix();
        stage.content.installed.scanRequested();
        stage.content.selectIndex(data.section);
        tryVerify(() => button("Scan Again") !== null);
        stage.lockPackages();
        stage.previewServicesList();
        press("Run Command");
        press("Close");
        compare(named(notice), null);
        stage.previewUpgrade();
        press("Run Command");
        press("Confirm brew upgrade");
        press("Close");
        shows(notice);
        press("Scan Again");
        hides(notice);
    }

    function test_aCancelledRunSaysSo() {
        stage.ignoreRequestsToEnd();
        start();
        showsLike(/^Fetching/);
        press("Cancel");
        announces("Homebrew was asked to end and is still finishing what it has begun.");
        verify(!button("Cancelling…").enabled);
        stage.release();
        announces("Cancelled");
    }

    function test_theWindowAsksBeforeItClosesOnARun() {
        quits.clear();
        start();
        window.close();
        shows("A Command Is Still Running");
        keyClick(Qt.Key_Escape);
        hides("A Command Is Still Running");
        verify(window.visible);
        verify(stage.content.commands.session.isRunning);
        keyClick(Qt.Key_Q, Qt.ControlModifier);
        press("Cancel Command and Quit");
        tryCompare(quits, "count", 1, 10000);
        compare(stage.historyCount(), 1);
        tryCompare(window, "visible", false);
    }

    function test_aRunThatWillNotEndCanBeLeft() {
        quits.clear();
        stage.ignoreRequestsToEnd();
        start();
        showsLike(/^Fetching/);
        window.close();
        press("Cancel Command and Quit");
        shows("Quillmere quits when brew upgrade has ended.");
        window.close();
        shows("Quit Without Waiting?");
        press("Keep Waiting");
        hides("Quit Without Waiting?");
        compare(quits.count, 0);
        window.close();
        press("Quit Now");
        tryCompare(quits, "count", 1);
        stage.release();
    }
}
