import QtQuick
import QtTest
import "../support/window"

// What assistive technology finds on each screen.
WindowTestCase {
    id: root

    name: "Spoken"

    readonly property var wholes: [Accessible.ListItem, Accessible.StaticText, Accessible.Button,
                                   Accessible.Heading]

    function names(from) {
        return spoken(from).map(item => item.Accessible.name);
    }

    // A thing with a name of its own speaks for all that is in it.
    function nothingIsReadTwice() {
        for (const item of spoken().filter(item => wholes.includes(item.Accessible.role))) {
            const inside = spoken(item).slice(1);
            compare(inside.map(each => each.Accessible.name), [], "in " + item.Accessible.name);
            verify(item.Accessible.name.length > 0, item);
        }
    }

    function test_theScreensReadNothingTwice_data() {
        return [0, 3, 4, 5, 6, 7, 8].map(index => ({tag: "section " + index, index: index}));
    }

    function test_theScreensReadNothingTwice(data) {
        stage.selectPrefix();
        stage.addToHistory();
        stage.content.selectIndex(data.index);
        wait(200);
        nothingIsReadTwice();
    }

    function test_thePreviewIsReadInOrder() {
        stage.previewUninstall();
        shows("Command Preview");
        nothingIsReadTwice();
        const all = names();
        const sheet = all.slice(all.lastIndexOf("Command Preview"));
        compare(sheet, ["Command Preview", "Review this command before copying or running it with the selected Homebrew prefix.",
                        "Command text", "brew uninstall wget",
                        "This text can be selected, copied, or run from Quillmere Direct when policy allows.",
                        "Uninstalls wget with Homebrew.", "Operation: Uninstall",
                        "Target: Formula wget", "Risk Level: Destructive", "Possible Effects",
                        "May remove wget from the Homebrew prefix.",
                        "May leave configuration or support files behind depending on Homebrew behavior.",
                        "Preview brew uninstall wget",
                        "Uninstall remains preview and copy only for Quillmere Direct v1.",
                        "Copy is always manual. Run uses Quillmere Direct policy.", "Cancel",
                        "Copy Command"]);
    }

    function test_aSessionReadsNothingTwice() {
        stage.selectPrefix();
        stage.content.services.previewServicesList();
        press("Run Command");
        shows("Completed with exit code 0");
        shows("Listing services, complete");
        compare(named("Listing services"), null);
        nothingIsReadTwice();
    }

    function test_aCopyIsSaidAndShown() {
        stage.content.services.previewServicesList();
        press("Copy Command");
        shows("Command copied");
        compare(named("Command copied").Accessible.role, Accessible.Notification);
    }

    function test_aRefusedFolderIsAnnounced() {
        stage.content.selectIndex(7);
        stage.content.settings.prefixSelection.chooseFolder(stage.emptyFolder);
        tryVerify(() => spoken().some(item => item.Accessible.role === Accessible.Notification
            && item.Accessible.name.startsWith("That folder does not look like")));
    }

    // Every control within reach of Tab, from where the keyboard is until it is there again.
    function tabStops() {
        const stops = [];
        for (let i = 0; i < 30 && !stops.includes(window.activeFocusItem); ++i) {
            stops.push(window.activeFocusItem);
            keyClick(Qt.Key_Tab);
        }
        compare(window.activeFocusItem, stops[0], "the keyboard does not come round");
        return stops.map(item => item.Accessible.name);
    }

    function test_tabGoesRoundThePreviewAndStaysInIt() {
        stage.selectPrefix();
        stage.content.services.previewServicesList();
        tryVerify(() => button("Copy Command") !== null && button("Copy Command").activeFocus);
        compare(tabStops(), ["Copy Command", "Run Command", "brew services list", "Cancel"]);
    }

    function test_tabGoesRoundTheSettings() {
        stage.selectPrefix();
        stage.content.selectIndex(7);
        shows("Looks like a Homebrew prefix");
        const stops = tabStops();
        const panel = stops.indexOf("Change Prefix");
        compare(stops.slice(panel), ["Change Prefix", "Recheck", "Reset", "Reset Selected Prefix",
                                     "Clear Command History", "Reset Onboarding",
                                     "Privacy Policy", "Quillmere Support"]);
    }

    function test_theKeyboardReturnsFromAnAlert() {
        stage.selectPrefix();
        stage.content.selectIndex(7);
        const reset = button("Reset Selected Prefix");
        reset.forceActiveFocus();
        keyClick(Qt.Key_Space);
        shows("Reset Homebrew Prefix?");
        keyClick(Qt.Key_Escape);
        tryCompare(reset, "activeFocus", true);
    }
}
