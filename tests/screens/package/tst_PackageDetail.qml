import QtQuick
import QtTest
import "../../support/window"

PackageDetailTestCase {
    id: root

    name: "PackageDetail"

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
                {tag: "Escape from the sidebar", from: "Sections", key: Qt.Key_Escape,
                 modifiers: Qt.NoModifier},
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
}
