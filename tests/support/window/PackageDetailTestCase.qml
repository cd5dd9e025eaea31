import QtQuick
import QtTest

// A test of the page of one package.
WindowTestCase {
    id: root

    function open(scene) {
        stage.content.selectIndex(2);
        stage.openPackage(scene);
        shows("Command Preview");
        verify(waitForRendering(window.contentItem));
    }

    function names() {
        return spoken().map(item => item.Accessible.name).filter(name => name.length > 0);
    }

    function commands() {
        return names().filter(name => /^Preview \w+ command$/.test(name));
    }
}
