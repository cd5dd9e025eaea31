import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One status: what it is about, the state in a word or two, and the sentence behind it.
Card {
    id: root

    required property string title
    required property string symbolName
    required property string value
    required property string detail

    property string tint: "neutral"
    property int parts: 0
    property int partsLeft: 0
    property string warning: ""

    Layout.fillHeight: true
    Layout.fillWidth: true
    Layout.preferredWidth: Theme.alertWidth
    spacing: Theme.small

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    RowLayout {
        spacing: Theme.small

        Symbol {
            name: root.symbolName
            color: Theme.accent
        }

        PlainText {
            Layout.fillWidth: true
            color: Theme.secondaryText
            elide: Text.ElideRight
            font.weight: Font.Medium
            text: root.title
            wrapMode: Text.NoWrap

            Accessible.role: Accessible.Heading
        }

    }

    RowLayout {
        spacing: Theme.medium

        TitleText {
            color: root.tint === "neutral" ? Theme.text : Theme.tint(root.tint)
            text: root.value

            Accessible.role: Accessible.StaticText
        }

        FreshnessGauge {
            parts: root.parts
            partsLeft: root.partsLeft
            visible: root.parts > 0
        }
    }

    BodyText {
        Layout.fillHeight: true
        Layout.fillWidth: true
        color: Theme.secondaryText
        text: root.detail
    }

    CaptionText {
        Layout.fillWidth: true
        color: Theme.orange
        text: root.warning
        visible: text.length > 0
        wrapMode: Text.Wrap
    }
}
