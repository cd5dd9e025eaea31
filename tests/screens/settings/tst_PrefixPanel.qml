import QtQuick
import "../../support/window"

WindowTestCase {
    id: root

    name: "PrefixPanel"

    function test_prefixPanelShowsWhatWasFound() {
        stage.content.selectIndex(7);
        shows("No Homebrew prefix is selected.");
        verify(!button("Recheck").enabled);
        verify(!button("Reset").enabled);
        stage.content.settings.prefixSelection.chooseFolder(stage.emptyFolder);
        shows("Does not look like a Homebrew prefix. Choose a folder containing `bin/brew`.");
        stage.content.settings.prefixSelection.chooseFolder(stage.prefix);
        shows("Looks like a Homebrew prefix");
        shows("Formula Cellar, Cellar, Readable (2 items)");
        verify(button("Change Prefix"));
        verify(button("Recheck").enabled);
    }

    function test_resettingThePrefixAsksAndCancelKeepsIt() {
        stage.selectPrefix();
        stage.content.selectIndex(7);
        press("Reset Selected Prefix");
        shows("Reset Homebrew Prefix?");
        keyClick(Qt.Key_Escape);
        hides("Reset Homebrew Prefix?");
        verify(stage.hasPrefix());
        press("Reset Selected Prefix");
        press("Reset Prefix");
        verify(!stage.hasPrefix());
        hides("Looks like a Homebrew prefix");
    }
}
