import QtQuick
import "../../support/window"

// What came of a run, when it has ended.
SessionTestCase {
    id: root

    name: "Outcome"

    function upgrade() {
        stage.selectPrefix();
        stage.previewUpgrade();
        press("Run Command");
        press("Confirm brew upgrade");
    }

    function test_theOutcomeOfARunStandsAboveItsSummary() {
        stage.lockPackages();
        upgrade();
        shows("Failed: A `brew upgrade` process has already locked wget");
        const outcome = named("Outcome");
        const summary = named("Upgrade Result");
        verify(outcome.mapToItem(null, 0, 0).y < summary.mapToItem(null, 0, 0).y);
    }

    function test_caveatsAreReadAndSelectedByKeyboard() {
        const caveats = "To start it:\n  brew services start it";
        stage.printCaveats();
        upgrade();
        shows("Caveats: " + caveats);
        const text = named("Caveats: " + caveats);
        verify(text.activeFocusOnTab);
        text.forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        compare(text.selectedText, caveats);
    }
}
