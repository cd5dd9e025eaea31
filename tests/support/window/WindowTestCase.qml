import QtQuick
import QtTest
import Quillmere.App

// A test with the real window over a world of its own.
TestCase {
    id: root

    property MainWindow window: null

    Component {
        id: maker

        MainWindow {
        }
    }

    function init() {
        stage.makeWorld();
        openWindow();
    }

    function openWindow() {
        window = maker.createObject(null, {content: stage.content, geometry: stage.geometry});
        verify(waitForRendering(window.contentItem));
        window.requestActivate();
        tryCompare(window, "active", true);
    }

    function cleanup() {
        window.destroy();
        wait(0);
        window = null;
        stage.endWorld();
        compare(stage.content, null);
    }

    // What assistive technology finds, in reading order: the visible items that have a role.
    function spoken(from) {
        const item = from || window.contentItem.parent;
        if (!item.visible || item.opacity === 0)
            return [];
        const own = item.Accessible.role !== Accessible.NoRole && !item.Accessible.ignored;
        return Array.from(item.children).reduce((all, child) => all.concat(spoken(child)),
                                                own ? [item] : []);
    }

    // The visible item that assistive technology knows by `name`; null when there is none.
    function named(name, from) {
        return spoken(from).find(item => item.Accessible.name === name) || null;
    }

    // The button of this name.
    function button(name, from) {
        const item = from || window.contentItem.parent;
        if (!item.visible)
            return null;
        if (item.Accessible.role === Accessible.Button && item.Accessible.name === name)
            return item;
        let found = null;
        for (let i = item.children.length - 1; i >= 0 && !found; --i)
            found = button(name, item.children[i]);
        return found;
    }

    function press(name) {
        tryVerify(() => button(name) !== null, 5000, "no button " + name);
        mouseClick(button(name));
    }

    function shows(name) {
        tryVerify(() => named(name) !== null, 10000, "does not show " + name);
    }

    function showsLike(pattern) {
        tryVerify(() => spoken().some(item => pattern.test(item.Accessible.name)), 10000,
                  "shows nothing like " + pattern);
    }

    // Every row of a list is found when it is in view, also where another has made room for it.
    function readsEachRow(list) {
        tryVerify(() => list.itemAtIndex(0) !== null);
        for (let row = 0; row < list.count; ++row) {
            list.positionViewAtIndex(row, ListView.Contain);
            verify(spoken(list).includes(list.itemAtIndex(row)), "row " + row);
        }
    }

    // A notification says so, as assistive technology reads it aloud.
    function announces(text) {
        tryVerify(() => spoken().some(item => item.Accessible.role === Accessible.Notification
                                              && item.Accessible.name === text), 5000, text);
    }

    function hides(name) {
        tryVerify(() => named(name) === null, 5000, "still shows " + name);
    }
}
