import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// One package with its two versions, how they stand to each other, and its upgrade.
FocusScope {
    id: root

    required property int index
    required property string heading
    required property string name
    required property string kindText
    required property string statusText
    required property string tint
    required property string installedText
    required property string latestKnownText
    required property string accessibleLabel
    required property string upgradeLabel
    required property string note

    readonly property real titleHeight: heading.length > 0 ? title.implicitHeight : 0

    signal upgradeRequested

    focus: ListView.isCurrentItem
    implicitHeight: titleHeight + Math.max(Theme.rowHeight + Theme.small,
                                           texts.implicitHeight + 2 * Theme.small)

    TitleText {
        id: title

        width: parent.width
        bottomPadding: Theme.small
        leftPadding: Theme.medium
        text: root.heading
        topPadding: Theme.medium
        visible: root.heading.length > 0
    }

    Rectangle {
        id: ground

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: root.titleHeight
        color: hover.hovered ? Theme.hover : "transparent"
        radius: Theme.smallRadius

        Accessible.role: Accessible.ListItem
        Accessible.name: root.accessibleLabel
        Accessible.description: root.note

        HoverHandler {
            id: hover
        }
    }

    RowLayout {
        anchors.fill: ground
        anchors.leftMargin: Theme.medium
        anchors.rightMargin: Theme.normal
        spacing: Theme.medium

        ColumnLayout {
            id: texts

            spacing: Theme.tiny

            RowLayout {
                spacing: Theme.small

                PlainText {
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    elide: Text.ElideRight
                    font.weight: Font.DemiBold
                    text: root.name
                    wrapMode: Text.NoWrap

                    Accessible.ignored: true
                }

                Pill {
                    spoken: false
                    text: root.kindText
                }

                Pill {
                    spoken: false
                    text: root.statusText
                    tint: root.tint
                }

                Item {
                    Layout.fillWidth: true
                }
            }

            RowLayout {
                spacing: Theme.normal

                VersionText {
                    Layout.maximumWidth: Layout.preferredWidth
                    Layout.preferredWidth: Theme.labelWidth + Theme.huge
                    label: "Installed"
                    value: root.installedText
                }

                VersionText {
                    label: "Latest known"
                    value: root.latestKnownText
                }

                Item {
                    Layout.fillWidth: true
                }
            }

            CaptionText {
                Layout.fillWidth: true
                text: root.note
                visible: text.length > 0

                Accessible.ignored: true
            }
        }

        ActionButton {
            accessibleName: root.upgradeLabel
            focus: true
            // The arrow keys lead to it: a stop for each of many rows would be too many.
            focusPolicy: Qt.ClickFocus
            help: "Opens a command preview where Quillmere Direct can run the upgrade after confirmation."
            symbolName: "arrow.up.circle"
            text: "Preview Upgrade"

            onClicked: root.upgradeRequested()
        }
    }
}
