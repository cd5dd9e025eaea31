import QtQuick
import QtQuick.Layouts

// The inside of a sheet: a head that stays, a body that scrolls when the window is small, a row of
// buttons that stays. While `filled`, the `filler` takes the room below the body, which then keeps
// to its own height.
FocusScope {
    id: root

    required property string title

    property string subtitle: ""
    property string symbolName: ""
    property string tint: "blue"
    property bool titleIsCode: false
    property string note: ""
    property string noteSymbolName: ""
    property bool filled: false
    property alias filler: fillerPlace.data
    default property alias content: body.content
    property alias actions: actionRow.data


    implicitHeight: column.implicitHeight

    function announce(text: string): void {
        announcer.announce(text);
    }

    ColumnLayout {
        id: column

        anchors.fill: parent
        spacing: Theme.normal

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.medium

            Rectangle {
                implicitWidth: Theme.controlHeight + Theme.small
                implicitHeight: implicitWidth
                Layout.alignment: Qt.AlignTop
                color: Theme.tintFill(root.tint)
                radius: Theme.largeRadius

                Symbol {
                    name: root.symbolName
                    anchors.centerIn: parent
                    color: Theme.tint(root.tint)
                    size: Theme.displaySize
                }
            }

            ColumnLayout {
                spacing: Theme.tiny / 2

                TitleText {
                    Layout.fillWidth: true
                    elide: Text.ElideRight
                    font.family: root.titleIsCode ? Theme.monospacedFamily : Theme.family
                    maximumLineCount: root.titleIsCode ? 2 : 1
                    text: root.title
                    wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                }

                BodyText {
                    Layout.fillWidth: true
                    color: Theme.secondaryText
                    text: root.subtitle
                }
            }

            Pill {
                Layout.alignment: Qt.AlignTop
                symbolName: root.noteSymbolName
                text: root.note
                visible: root.note.length > 0
            }
        }

        ScreenPage {
            id: body

            Layout.fillHeight: !root.filled
            Layout.fillWidth: true
            Layout.margins: -Theme.normal
            Layout.maximumHeight: root.filled ? root.height / 2 : Infinity
            margin: Theme.normal

            // Where the body is cut off.
            Hairline {
                parent: body
                anchors.bottom: parent.bottom
                anchors.left: parent.left
                anchors.right: parent.right
                visible: body.overflows
            }
        }

        Item {
            id: fillerPlace

            Layout.fillHeight: true
            Layout.fillWidth: true
            visible: root.filled
        }

        RowLayout {
            id: actionRow

            Layout.fillWidth: true
            spacing: Theme.small
        }
    }

    // Last, so that what it says is not read before the sheet.
    Announcer {
        id: announcer
    }
}
