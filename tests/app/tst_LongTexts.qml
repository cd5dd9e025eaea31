import QtQuick
import QtTest
import Quillmere.Components
import "../support/window"

// Nothing that is too long for its place leaves it.
WindowTestCase {
    id: root

    name: "LongTexts"

    Component {
        id: page

        SheetPage {
            width: 500
            height: 500
            subtitle: "Homebrew said no. ".repeat(17)
            title: "brew install wget"
        }
    }

    // Every item that shows stays between the edges of `frame`, side to side.
    function staysInside(frame) {
        for (const item of spoken(frame)) {
            const left = item.mapToItem(frame, 0, 0).x;
            verify(left >= 0 && left + item.width <= frame.width + 0.5,
                   item.Accessible.name + " from " + left + " to " + (left + item.width));
            if (item.contentWidth !== undefined)
                verify(item.contentWidth <= Math.ceil(item.width) || item.truncated,
                       item.Accessible.name + " is wider than its place");
        }
    }

    // Buttons say all that they have to say.
    function buttonsAreWhole(frame) {
        const buttons = spoken(frame).filter(item => item.Accessible.role === Accessible.Button);
        for (const each of buttons)
            verify(!cutOff(each), each.Accessible.name);
    }

    function cutOff(item) {
        return item.truncated || Array.from(item.children).some(cutOff);
    }

    // The sheet or alert that `item` is in.
    function sheetOf(item) {
        while (item && item.toString().indexOf("PopupItem") < 0)
            item = item.parent;
        return item;
    }

    function test_aNameOf120CharactersFits() {
        window.width = 900;
        window.height = 600;
        stage.selectPrefix();
        stage.previewLongInstall();
        tryVerify(() => button("Copy Command") !== null);
        wait(100);
        staysInside(sheetOf(button("Copy Command")));
        buttonsAreWhole(sheetOf(button("Copy Command")));
        press("Run Command");
        const confirm = "Confirm brew install " + "w".repeat(120);
        tryVerify(() => button(confirm) !== null);
        wait(100);
        staysInside(sheetOf(button(confirm)));
        press(confirm);
        tryVerify(() => button("Close") !== null, 15000);
        staysInside(sheetOf(button("Close")));
        press("Show command-line output");
        wait(100);
        staysInside(sheetOf(button("Close")));
    }

    function test_aStatusOf300CharactersWraps() {
        const sheet = page.createObject(window.contentItem);
        waitForRendering(sheet);
        const status = named(sheet.subtitle, sheet);
        verify(status.lineCount > 3);
        verify(!status.truncated);
        staysInside(sheet);
        sheet.destroy();
    }

    function test_everyScreenFitsTheSmallestWindow_data() {
        return [0, 1, 2, 3, 4, 5, 6, 7, 8].map(index => ({tag: "section " + index, index: index}));
    }

    function test_everyScreenFitsTheSmallestWindow(data) {
        window.width = 900;
        window.height = 600;
        stage.selectPrefix();
        stage.addToHistory();
        stage.content.selectIndex(data.index);
        wait(150);
        staysInside(window.contentItem);
        buttonsAreWhole(window.contentItem);
    }
}
