import QtQuick
import QtTest
import "../../support/window"

WindowTestCase {
    id: root

    name: "History"

    readonly property string prompt: "Search command history"

    function open() {
        stage.content.selectIndex(6);
        shows("History");
    }

    function type(text) {
        for (const letter of text)
            keyClick(letter);
    }

    function list() {
        return named("Command history");
    }

    function test_withoutRecordsThereIsNothingToSearch() {
        open();
        shows("Commands you copy or run will appear here. History is stored locally and can be cleared anytime.");
        compare(named(prompt), null);
        compare(button("Clear History"), null);
    }

    function test_itIsSearchedByKeyboardAsOneTypes() {
        stage.addManyToHistory(3);
        stage.addToHistory();
        open();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        const field = named(prompt);
        verify(field.activeFocus);
        compare(field.Accessible.role, Accessible.EditableText);
        type("clean");
        compare(list().count, 1);
        shows("1 of 4 commands");
        announces("1 of 4 commands");
        keyClick(Qt.Key_Down);
        verify(list().activeFocus);
    }

    function test_eachRecordIsRead() {
        stage.addManyToHistory(50);
        open();
        readsEachRow(list());
    }

    function test_noMatchIsSaidAndTheSearchClearedByKeyboard() {
        stage.addToHistory();
        open();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("wget");
        shows("No History Matches");
        shows("Try a different command, package, operation, or source screen search.");
        announces("No History Matches");
        const clear = button("Clear Search");
        clear.forceActiveFocus();
        keyClick(Qt.Key_Space);
        hides("No History Matches");
        compare(named(prompt).text, "");
        verify(named(prompt).activeFocus);
        compare(list().count, 1);
    }

    function test_escapeEmptiesTheSearchAndThenLeavesIt() {
        stage.addToHistory();
        open();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("wget");
        shows("No History Matches");
        keyClick(Qt.Key_Escape);
        compare(stage.content.history.searchText, "");
        compare(list().count, 1);
        verify(named(prompt).activeFocus);
        keyClick(Qt.Key_Escape);
        verify(list().activeFocus);
    }

    function test_theSearchBeginsAnewWhenOneComesBack() {
        stage.addToHistory();
        open();
        stage.content.history.searchText = "wget";
        stage.content.selectIndex(0);
        open();
        compare(named(prompt).text, "");
        compare(list().count, 1);
    }

    function test_clearingIsSaid() {
        stage.addToHistory();
        open();
        button("Clear History").forceActiveFocus();
        keyClick(Qt.Key_Return);
        shows("Quillmere will remove locally stored copied-command and execution history records.");
        tryVerify(() => button("Cancel").activeFocus);
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Return);
        shows("No Command History");
        announces("Command history cleared");
        compare(stage.historyCount(), 0);
    }

    function test_aLongHistoryTakesAllTheRoomAndAShortOneNoMore() {
        stage.addManyToHistory(2);
        open();
        tryCompare(list(), "height", list().contentHeight);
        stage.addManyToHistory(100);
        tryVerify(() => list().mapToItem(null, 0, list().height).y > window.height - 40);
    }

    function test_aLargeHistoryIsSearchedAsOneTypes() {
        stage.addManyToHistory(10000);
        stage.addToHistory();
        open();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("brew cleanup");
        tryCompare(list(), "count", 1);
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
