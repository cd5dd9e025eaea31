import QtQuick
import QtTest
import "../../support/window"

// The second way in: through a folder that is a prefix.
WindowTestCase {
    id: root

    name: "OnboardingPrefix"

    readonly property string title: "Welcome to Quillmere"
    readonly property string chooserTitle: "Select your Homebrew prefix. For Apple Silicon Macs, "
                                           + "this is usually /opt/homebrew."

    function raise() {
        stage.resetOnboarding();
        shows(title);
        tryVerify(() => button("Continue Catalog-Only").activeFocus);
    }

    function test_itAsksForTheFolder() {
        raise();
        let asked = 0;
        const count = () => ++asked;
        stage.content.prefixSelection.chooserRequested.connect(count);
        press("Select Homebrew Prefix");
        stage.content.prefixSelection.chooserRequested.disconnect(count);
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
        // From Qt 6.8 on the chooser is a window of its own, and no window manager leads back.
        tryVerify(() => stage.windowNamed(chooserTitle) === null);
        window.requestActivate();
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

    Component {
        id: otherWindow

        Window {
            visible: true
        }
    }

    function test_theKeyboardIsInTheProgramThatWasOpenedUnderAnotherWindow() {
        raise();
        const other = createTemporaryObject(otherWindow, null);
        other.requestActivate();
        tryCompare(window, "active", false);
        stage.content.prefixSelection.choose(stage.prefix);
        hides(title);
        window.requestActivate();
        tryVerify(() => window.activeFocusItem?.Accessible.name === "Dashboard");
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
