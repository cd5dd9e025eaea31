import QtQuick
import QtTest
import "../../support/window"

// All that a run printed: looked at, selected, copied.
SessionTestCase {
    id: root

    name: "RawOutput"

    function test_theOutputTakesTheRoomOfASmallWindow() {
        window.width = 900;
        window.height = 600;
        run();
        compare(named("Found 3 services"), null);
        tryVerify(() => list().height > 230);
        window.height = 1000;
        shows("Found 3 services");
        tryVerify(() => list().height > 300);
    }

    function test_linesAreSelectedByDraggingAndCopied() {
        run();
        const from = at(2);
        const to = at(4);
        mousePress(list(), from.x, from.y);
        mouseMove(list(), to.x, to.y);
        mouseRelease(list(), to.x, to.y);
        keyClick(Qt.Key_C, Qt.ControlModifier);
        compare(stage.clipboard(), texts(2, 4));
        announces("3 lines copied");
    }

    function test_aClickWithShiftExtendsTheSelection() {
        run();
        mouseClick(list(), at(5).x, at(5).y);
        mouseClick(list(), at(3).x, at(3).y, Qt.LeftButton, Qt.ShiftModifier);
        keyClick(Qt.Key_C, Qt.ControlModifier);
        compare(stage.clipboard(), texts(3, 5));
    }

    function test_theKeyboardSelectsAndCopies() {
        run();
        verify(list().activeFocus);
        keyClick(Qt.Key_Home);
        keyClick(Qt.Key_Down, Qt.ShiftModifier);
        keyClick(Qt.Key_C, Qt.ControlModifier);
        compare(stage.clipboard(), texts(0, 1));
        keyClick(Qt.Key_A, Qt.ControlModifier);
        keyClick(Qt.Key_C, Qt.ControlModifier);
        compare(stage.clipboard().split("\n").length, list().count);
    }

    function test_withoutASelectionAllOfTheOutputIsCopied() {
        run();
        press("Copy Output");
        compare(stage.clipboard().split("\n").length, list().count);
        announces(list().count + " lines copied");
    }

    function test_theOutputFollowsItsEndUntilTheUserScrollsUp() {
        start();
        press("Show command-line output");
        tryVerify(() => list() && list().contentHeight > list().height + 50, 10000);
        tryVerify(() => list().atYEnd);
        keyClick(Qt.Key_Home);
        verify(!list().atYEnd);
        const top = list().contentY;
        const lines = list().count;
        tryVerify(() => list().count > lines + 1, 10000);
        wait(50);
        compare(list().contentY, top);
        keyClick(Qt.Key_End);
        tryVerify(() => list().atYEnd);
    }

    function test_eachLineIsRead() {
        start();
        press("Show command-line output");
        tryVerify(() => list() && list().contentHeight > list().height + 50, 10000);
        keyClick(Qt.Key_Home);
        readsEachRow(list());
    }

    function test_hidingTheOutputKeepsTheKeyboard() {
        run();
        press("Hide command-line output");
        tryVerify(() => button("Show command-line output").activeFocus);
    }
}
