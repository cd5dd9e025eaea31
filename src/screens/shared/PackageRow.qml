import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// What the rows of all package lists have in common: the name, the kind, a line about it, and room
// for versions at the end.
ListRow {
    id: root

    required property int index
    required property string name
    required property string kind
    required property string description
    required property string accessibleLabel

    default property alias versions: versionRow.data

    implicitHeight: Math.max(Theme.rowHeight + Theme.tiny, row.implicitHeight + 2 * Theme.small)
    accessibleName: accessibleLabel
    focusPolicy: Qt.NoFocus
    highlighted: activeFocus

    onClicked: (ListView.view as PackageList).choose(index)

    // Qt 6.8 hides a row from assistive technology when it leaves the view, and keeps it hidden when
    // it comes back as another.
    ListView.onReused: Accessible.ignored = false

    Hairline {
        anchors.left: parent.left
        anchors.leftMargin: Theme.medium
        anchors.right: parent.right
        anchors.rightMargin: Theme.medium
        visible: root.index > 0
    }

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: Theme.medium
        anchors.rightMargin: Theme.normal
        spacing: Theme.medium

        ColumnLayout {
            spacing: Theme.tiny / 2

            RowLayout {
                spacing: Theme.small

                // Also a name from right to left begins where all names begin.
                PlainText {
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    elide: Text.ElideRight
                    font.weight: Font.DemiBold
                    horizontalAlignment: Text.AlignLeft
                    maximumLineCount: 1
                    text: root.name
                    wrapMode: Text.NoWrap

                    Accessible.ignored: true
                }

                Pill {
                    spoken: false
                    text: root.kind
                }

                Item {
                    Layout.fillWidth: true
                }
            }

            CaptionText {
                Layout.fillWidth: true
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
                maximumLineCount: 1
                text: root.description
                visible: text.length > 0
                wrapMode: Text.NoWrap

                Accessible.ignored: true
            }
        }

        RowLayout {
            id: versionRow

            spacing: Theme.medium
        }
    }
}
