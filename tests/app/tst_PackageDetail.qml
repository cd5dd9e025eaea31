import QtQuick
import QtTest

WindowCase {
    id: root

    name: "PackageDetail"

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

    function test_aPackageIsReadInOrder() {
        open("installed");
        const all = names();
        compare(all.slice(all.indexOf("Back"), all.indexOf("Freshness")),
                ["Back", "wget", "Formula", "1.25.0", "Internet file retriever",
                 "Metadata", "Metadata", "Latest known: 1.25.0", "Head version: HEAD",
                 "Homepage: https://www.gnu.org/software/wget/", "Open Homepage",
                 "License: GPL-3.0-or-later", "Tap: homebrew/core",
                 "Local State", "Local State", "Installed version: 1.24.5, 1.25.0",
                 "Local source: Installed on request",
                 "Dependencies", "Dependencies", "Dependencies",
                 "gettext", "libidn2", "libunistring", "openssl@3",
                 "Reverse Dependencies", "Reverse Dependencies",
                 "Formulae in the loaded catalog that list this package as a dependency:",
                 "Reverse Dependencies", "gotests", "wgetpaste"]);
        compare(commands(), ["Preview Info command", "Preview Install command",
                             "Preview Upgrade command", "Preview Uninstall command",
                             "Preview Deps command", "Preview Uses command"]);
    }

    function test_aCaskHasNoDependencies() {
        open("cask");
        shows("Artifacts");
        compare(commands(), ["Preview Info command", "Preview Install command",
                             "Preview Upgrade command", "Preview Uninstall command"]);
        compare(named("app").Accessible.role, Accessible.StaticText);
        shows("Reverse dependency information is not available from the current data.");
    }

    function test_aCommandIsPreviewedForTheTokenOfACask() {
        open("installed-cask");
        const upgrade = button("Preview Upgrade command");
        compare(upgrade.Accessible.description, "Opens a command preview for brew upgrade --cask firefox. Quillmere Direct can run approved commands when policy allows.");
        upgrade.forceActiveFocus();
        keyClick(Qt.Key_Space);
        shows("brew upgrade --cask firefox");
        // Escape closes the preview and not the package under it.
        keyClick(Qt.Key_Escape);
        hides("brew upgrade --cask firefox");
        shows("Mozilla Firefox");
    }

    function test_noCommandIsOfferedForANameThatNoneMayHold() {
        open("refused");
        shows("Command previews are unavailable because this package identifier is not recognized.");
        compare(commands(), []);
    }

    function test_theKeyboardIsOnTheWayBack() {
        stage.content.selectIndex(5);
        button("Preview services list command").forceActiveFocus();
        stage.openPackage("formula");
        tryVerify(() => button("Back") !== null && button("Back").activeFocus);
    }

    function test_theWayBack_data() {
        return [{tag: "Escape", from: "Back", key: Qt.Key_Escape, modifiers: Qt.NoModifier},
                {tag: "Alt+Left", from: "Back", key: Qt.Key_Left, modifiers: Qt.AltModifier},
                {tag: "Escape from a text", from: "Latest known: 1.25.0", key: Qt.Key_Escape,
                 modifiers: Qt.NoModifier},
                {tag: "Alt+Left from a text", from: "Latest known: 1.25.0", key: Qt.Key_Left,
                 modifiers: Qt.AltModifier},
                {tag: "Alt+Left from a name", from: "libidn2", key: Qt.Key_Left,
                 modifiers: Qt.AltModifier}];
    }

    function test_theWayBack(data) {
        open("installed");
        named(data.from).forceActiveFocus();
        keyClick(data.key, data.modifiers);
        tryCompare(stage.content.details, "current", null);
    }

    function test_theButtonGoesBackToThePackageBefore() {
        open("formula");
        open("installed-cask");
        shows("Mozilla Firefox");
        press("Back");
        shows("wget");
        press("Back");
        tryCompare(stage.content.details, "current", null);
    }

    function test_theMouseGoesBack() {
        open("formula");
        mouseClick(window.contentItem, 500, 300, Qt.BackButton);
        tryCompare(stage.content.details, "current", null);
    }

    function test_theHomepageIsHandedToTheBrowser() {
        open("formula");
        press("Open Homepage");
        compare(stage.openedUrl.toString(), "https://www.gnu.org/software/wget/");
    }

    function test_aBrowserThatDoesNotStartIsReported() {
        stage.breakBrowser();
        open("formula");
        press("Open Homepage");
        announces("No browser could be opened. Copy the address instead.");
    }

    function test_onlyAddressesForABrowserAreOffered_data() {
        return [{tag: "cask"}, {tag: "bare"}];
    }

    function test_onlyAddressesForABrowserAreOffered(data) {
        open(data.tag);
        compare(button("Open Homepage"), null);
    }

    function test_valuesCanBeCopied_data() {
        return [{tag: "wget", text: "wget"}, {tag: "Latest known: 1.25.0", text: "1.25.0"},
                {tag: "Homepage: https://www.gnu.org/software/wget/",
                 text: "https://www.gnu.org/software/wget/"},
                {tag: "License: GPL-3.0-or-later", text: "GPL-3.0-or-later"},
                {tag: "Installed version: 1.24.5, 1.25.0", text: "1.24.5, 1.25.0"}];
    }

    function test_valuesCanBeCopied(data) {
        open("installed");
        named(data.tag).forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        keyClick(Qt.Key_C, Qt.ControlModifier);
        compare(stage.clipboard(), data.text);
    }

    function test_theKeyboardPassesWhatHasNoValue() {
        open("bare");
        button("Back").forceActiveFocus();
        keyClick(Qt.Key_Tab);
        compare(window.activeFocusItem.Accessible.name, "bare");
        keyClick(Qt.Key_Tab);
        compare(window.activeFocusItem.Accessible.name, "Preview Info command");
    }

    function test_aTagLeadsToItsFormula() {
        open("formula");
        compare(named("libidn2").Accessible.role, Accessible.Button);
        mouseClick(named("libidn2"));
        compare(stage.wantedFormula, "libidn2");
        named("gettext").Accessible.pressAction();
        compare(stage.wantedFormula, "gettext");
    }

    function test_theArrowKeysGoFromTagToTag() {
        open("many");
        named("dependency-1").forceActiveFocus();
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Left);
        keyClick(Qt.Key_Up);
        compare(window.activeFocusItem.Accessible.name, "dependency-1");
        keyClick(Qt.Key_Up);
        compare(window.activeFocusItem.Accessible.name, "dependency-1");
        keyClick(Qt.Key_End);
        keyClick(Qt.Key_Return);
        compare(stage.wantedFormula, "dependency-61");
        // All of them together are one stop.
        keyClick(Qt.Key_Tab);
        compare(window.activeFocusItem.Accessible.name, "python-dependant-1");
        keyClick(Qt.Key_Tab);
        compare(window.activeFocusItem.Accessible.name, "Preview Info command");
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        compare(window.activeFocusItem.Accessible.name, "python-dependant-1");
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        compare(window.activeFocusItem.Accessible.name, "dependency-61");
    }

    function test_hundredsOfDependantsOpenAtOnce() {
        stage.content.selectIndex(2);
        const begin = Date.now();
        stage.openPackage("many");
        const needed = Date.now() - begin;
        shows("python-dependant-745");
        console.info("745 dependants:", needed, "ms");
        verify(needed < 2000, needed);
    }

    function test_longTextsStayInTheWindow_data() {
        return [{tag: "long"}, {tag: "right-to-left"}];
    }

    function test_longTextsStayInTheWindow(data) {
        open(data.tag);
        for (const item of spoken()) {
            const end = item.mapToItem(window.contentItem, item.width, 0).x;
            verify(end <= window.width + 1, item.Accessible.name);
        }
    }
}
