import QtQuick
import QtTest

// The second way in: through a folder that is a prefix.
WindowCase {
    id: root

    name: "OnboardingPrefix"

    readonly property string title: "Welcome to Quillmere"

    function raise() {
        stage.resetOnboarding();
        shows(title);
        tryVerify(() => button("Continue Catalog-Only").activeFocus);
    }

    function test_itAsksForTheFolder() {
        raise();
        let asked = 0;
        const count = () => ++asked;
        stage.content.prefixSelection.chooserWanted.connect(count);
        press("Select Homebrew Prefix");
        stage.content.prefixSelection.chooserWanted.disconnect(count);
        compare(asked, 1);
        verify(named(title));
        verify(!stage.hasCompletedOnboarding());
    }

    function test_theChooserOpensAboveTheSheetAndCancelledLeavesItAsItIs() {
        raise();
        press("Select Homebrew Prefix");
        const choose = button("Select Homebrew Prefix");
        tryCompare(choose, "activeFocus", false);
        keyClick(Qt.Key_Escape);
        tryCompare(choose, "activeFocus", true);
        verify(named(title));
        verify(!stage.hasCompletedOnboarding());
        verify(!stage.hasPrefix());
    }

    function test_aPrefixOpensTheProgram() {
        raise();
        stage.content.prefixSelection.choose(stage.prefix);
        hides(title);
        verify(stage.hasCompletedOnboarding());
        verify(stage.hasPrefix());
    }

    function test_thePrefixOfBeforeOpensTheProgramAsWell() {
        stage.selectPrefix();
        raise();
        stage.content.prefixSelection.choose(stage.prefix);
        hides(title);
        verify(stage.hasCompletedOnboarding());
    }

    function test_anotherFolderIsRefusedAboveTheSheetAndLeavesItAsItIs() {
        raise();
        stage.content.prefixSelection.choose(stage.emptyFolder);
        shows("Select a Homebrew Prefix");
        tryVerify(() => button("Cancel").activeFocus);
        const alert = named("Select a Homebrew Prefix");
        verify(alert.width > 200);
        keyClick(Qt.Key_Escape);
        hides("Select a Homebrew Prefix");
        verify(named(title));
        verify(!stage.hasCompletedOnboarding());
        verify(!stage.hasPrefix());
        tryVerify(() => button("Continue Catalog-Only").activeFocus
                        || button("Select Homebrew Prefix").activeFocus);
    }
}
