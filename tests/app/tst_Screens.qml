import QtQuick

WindowCase {
    id: root

    name: "Screens"

    function test_servicesButtonTellsWhatItDoes() {
        stage.content.selectIndex(5);
        shows("Services Guidance");
        const preview = button("Preview services list command");
        compare(preview.text, "Preview Services List");
        compare(preview.Accessible.description, "Opens a command preview where Quillmere Direct can run the services list command.");
    }

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

    function test_historyIsListedAndCleared() {
        stage.content.selectIndex(6);
        shows("No Command History");
        stage.addToHistory();
        showsLike(/^Command brew cleanup, operation cleanup, target no target, source Cleanup, copied /);
        press("Clear History");
        shows("Clear Command History?");
        keyClick(Qt.Key_Escape);
        hides("Clear Command History?");
        compare(stage.historyCount(), 1);
        stage.content.history.askClear();
        shows("Clear Command History?");
        stage.content.history.confirmClear();
        shows("No Command History");
    }
}
