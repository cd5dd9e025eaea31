import QtQuick
import QtTest
import "../../support/window"

WindowTestCase {
    id: root

    name: "Onboarding"

    readonly property string title: "Welcome to Quillmere"

    function raise() {
        stage.resetOnboarding();
        shows(title);
        tryVerify(() => button("Continue Catalog-Only").activeFocus);
    }

    function test_itSaysItsTextsInOrder() {
        raise();
        const names = spoken().map(item => item.Accessible.name);
        compare(names.slice(names.lastIndexOf(title)), [title,
            "Homebrew, made visible without taking over your tools.",
            "Browse Catalog", "Browse Catalog",
            "Use Quillmere without local file access by browsing public Homebrew formula and cask metadata.",
            "Read-Only Local Access", "Read-Only Local Access",
            "Select your Homebrew prefix only if you want local inventory features. Quillmere reads metadata and does not write to Homebrew paths.",
            "Approved Command Runs", "Approved Command Runs",
            "Quillmere Direct can run approved Homebrew commands from your selected prefix. Mutating commands require confirmation, and uninstall remains preview-only.",
            "Local-First Privacy", "Local-First Privacy",
            "Selected prefix metadata and future command history stay on this Mac. Quillmere is free and has no account requirement.",
            "Start safely. Add local access when it helps.",
            "Start safely. Add local access when it helps.",
            "Choose catalog-only browsing, or select your Homebrew prefix when you are ready to inspect packages and run approved commands.",
            "You can reset onboarding later from Settings.", "Continue Catalog-Only",
            "Select Homebrew Prefix"]);
    }

    function test_itIsThereWhenTheWindowOpens() {
        stage.resetOnboarding();
        window.destroy();
        wait(0);
        openWindow();
        shows(title);
        tryVerify(() => button("Continue Catalog-Only").activeFocus);
    }

    function test_itGoesByNothingButItsButtons() {
        raise();
        keyClick(Qt.Key_Escape);
        mouseClick(window.contentItem, 5, 5);
        mouseClick(window.contentItem, window.width - 5, window.height - 5);
        keyClick(Qt.Key_1, Qt.ControlModifier);
        wait(300);
        verify(named(title));
        verify(!stage.hasCompletedOnboarding());
    }

    function test_theFirstWayInIsOneKeyAway() {
        raise();
        keyClick(Qt.Key_Return);
        hides(title);
        verify(stage.hasCompletedOnboarding());
        verify(!stage.hasPrefix());
    }

    function test_tabGoesRoundTheTwoWaysIn() {
        raise();
        const stops = [];
        for (let i = 0; i < 3; ++i) {
            stops.push(window.activeFocusItem.Accessible.name);
            keyClick(Qt.Key_Tab);
        }
        compare(stops, ["Continue Catalog-Only", "Select Homebrew Prefix", "Continue Catalog-Only"]);
    }

    function test_theSettingsRaiseItAtOnce_data() {
        return [{tag: "section"}, {tag: "window"}];
    }

    function test_theSettingsRaiseItAtOnce(data) {
        const settings = data.tag === "section" ? stage.content.settings
                                                : stage.content.settingsWindow;
        settings.askResetOnboarding();
        compare(named(title), null);
        settings.confirm();
        shows(title);
    }

    function test_allOfItFitsTheSmallestWindow() {
        window.width = 900;
        window.height = 600;
        raise();
        for (const name of ["Welcome to Quillmere", "Select Homebrew Prefix",
                            "Choose catalog-only browsing, or select your Homebrew prefix when you are ready to inspect packages and run approved commands."]) {
            const item = named(name);
            const top = item.mapToItem(null, 0, 0).y;
            verify(top >= 0 && top + item.height <= 600, name);
        }
    }
}
