import QtQuick
import QtTest

// A test of a screen that shows what is installed.
WindowTestCase {
    id: root

    required property int section

    // The scenes are those of `DemoPackages.h`.
    function show(scene) {
        stage.selectPrefix();
        stage.content.selectIndex(section);
        stage.showInventory(scene);
        verify(waitForRendering(window.contentItem));
    }

    // `text` is the whole text or a pattern of it.
    function showsText(text) {
        if (text instanceof RegExp)
            showsLike(text);
        else
            shows(text);
    }

    // Every button that can be seen, in reading order.
    function buttons() {
        return spoken().filter(item => item.Accessible.role === Accessible.Button)
                       .map(item => item.Accessible.name);
    }
}
