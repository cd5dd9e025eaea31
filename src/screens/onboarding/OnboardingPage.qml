import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// The inside of the first thing that a new user sees: what the program does, and two ways in.
ColumnLayout {
    id: root

    signal finished
    signal selectPrefixRequested

    spacing: Theme.normal

    DisplayText {
        Layout.fillWidth: true
        text: "Welcome to Quillmere"
    }

    BodyText {
        Layout.fillWidth: true
        Layout.topMargin: -Theme.medium
        color: Theme.secondaryText
        text: "Homebrew, made visible without taking over your tools."
    }

    ScreenPage {
        id: body

        Layout.fillHeight: true
        Layout.fillWidth: true
        Layout.margins: -Theme.tiny
        margin: Theme.tiny

        GridLayout {
            Layout.fillWidth: true
            columnSpacing: Theme.large
            columns: 2
            rowSpacing: Theme.large

            OnboardingFeature {
                symbolName: "books.vertical"
                text: "Use Quillmere without local file access by browsing public Homebrew formula and cask metadata."
                title: "Browse Catalog"
            }

            OnboardingFeature {
                symbolName: "externaldrive"
                text: "Select your Homebrew prefix only if you want local inventory features. Quillmere reads metadata and does not write to Homebrew paths."
                title: "Read-Only Local Access"
            }

            OnboardingFeature {
                symbolName: "terminal"
                text: "Quillmere Direct can run approved Homebrew commands from your selected prefix. Mutating commands require confirmation, and uninstall remains preview-only."
                title: "Approved Command Runs"
            }

            OnboardingFeature {
                symbolName: "lock.shield"
                text: "Selected prefix metadata and future command history stay on this Mac. Quillmere is free and has no account requirement."
                title: "Local-First Privacy"
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.topMargin: Theme.small
            implicitHeight: hint.implicitHeight + 2 * Theme.normal
            color: Theme.tintFill("blue")
            radius: Theme.largeRadius

            OnboardingFeature {
                id: hint

                anchors.fill: parent
                anchors.margins: Theme.normal
                symbolName: "lightbulb"
                text: "Choose catalog-only browsing, or select your Homebrew prefix when you are ready to inspect packages and run approved commands."
                title: "Start safely. Add local access when it helps."
            }
        }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.small

        CaptionText {
            Layout.fillWidth: true
            text: "You can reset onboarding later from Settings."
        }

        PrimaryButton {
            focus: true
            text: "Continue Catalog-Only"

            onClicked: root.finished()
        }

        ActionButton {
            text: "Select Homebrew Prefix"

            onClicked: root.selectPrefixRequested()
        }
    }
}
