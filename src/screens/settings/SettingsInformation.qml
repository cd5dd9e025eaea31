import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Shared

// What stays on this computer, and where to ask.
ColumnLayout {
    id: root

    spacing: Theme.normal

    component Paragraph: BodyText {
        Layout.fillWidth: true
        color: Theme.secondaryText
    }

    SectionBlock {
        symbolName: "lock.shield"
        title: "Privacy"

        Paragraph {
            text: "Quillmere stores selected prefix metadata, catalog cache files, local scan markers, and command history locally on this Mac."
        }

        Paragraph {
            text: "The app fetches public Homebrew metadata for catalog browsing. It does not upload installed package lists or command history."
        }

        LinkButton {
            page: ExternalLinks.privacyPolicy
            text: "Privacy Policy"
        }
    }

    SectionBlock {
        symbolName: "info.circle"
        title: "Support"

        Paragraph {
            text: "Support information is available online for Quillmere users."
        }

        LinkButton {
            page: ExternalLinks.support
            text: "Quillmere Support"
        }

        Paragraph {
            text: "Quillmere is not affiliated with Homebrew. Homebrew names and metadata belong to their respective owners."
        }
    }
}
