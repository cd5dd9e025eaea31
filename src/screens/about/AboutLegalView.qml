import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Shared

// What the program is, what it keeps, what it may run, and whose the names in it are.
ScreenPage {
    id: root

    component Paragraph: BodyText {
        Layout.fillWidth: true
    }

    ProductHeader {
        Layout.bottomMargin: Theme.small
        Layout.fillWidth: true
        tagline: "A free, local-first macOS companion for Homebrew."
        text: "Version " + Qt.application.version
    }

    SectionBlock {
        symbolName: "info.circle"
        title: "Homebrew Disclaimer"

        Paragraph {
            text: "Quillmere is not affiliated with, endorsed by, or sponsored by Homebrew. Homebrew names, package metadata, and related marks belong to their respective owners."
        }
    }

    SectionBlock {
        symbolName: "lock.shield"
        title: "Privacy Summary"

        Paragraph {
            text: "Quillmere stores selected prefix metadata, catalog cache files, local scan markers, and command history locally on this Mac. The app does not upload installed package lists or command history."
        }

        Paragraph {
            text: "Catalog features download public Homebrew metadata from Homebrew sources."
        }

        LinkButton {
            initialFocus: true
            page: ExternalLinks.privacyPolicy
            text: "Privacy Policy"
        }
    }

    SectionBlock {
        symbolName: "checkmark.shield"
        title: "Direct Build"

        Paragraph {
            text: "This build can run approved Homebrew commands from the selected prefix. Informational commands can run directly, mutating commands require confirmation, and uninstall remains preview/copy-only."
        }
    }

    SectionBlock {
        symbolName: "questionmark.circle"
        title: "Support"

        Paragraph {
            text: "Support information is available online for Quillmere users."
        }

        LinkButton {
            page: ExternalLinks.support
            text: "Quillmere Support"
        }

        LinkButton {
            page: ExternalLinks.homebrew
            text: "Homebrew Website"
        }
    }

    SectionBlock {
        symbolName: "doc.text"
        title: "Legal"

        Paragraph {
            text: "Quillmere is free software for helping users view metadata and prepare manual commands. External links open only when selected."
        }
    }
}
