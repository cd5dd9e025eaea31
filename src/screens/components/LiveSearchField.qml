import QtQuick
import QtQuick.Templates as T

// Searches while the user types. Escape empties it, and leaves it when it is empty.
T.TextField {
    id: root

    property string prompt: ""

    signal searched(text: string)
    signal finished

    implicitWidth: Theme.alertWidth
    implicitHeight: Math.max(Theme.controlHeight, contentHeight + 2 * Theme.small)
    color: Theme.text
    font.pixelSize: Theme.bodySize
    leftPadding: Theme.small + Theme.symbolSize + Theme.small
    rightPadding: Theme.controlHeight
    selectByMouse: true
    selectedTextColor: Theme.selectionText
    selectionColor: Theme.selection
    verticalAlignment: TextInput.AlignVCenter

    Accessible.role: Accessible.EditableText
    Accessible.name: prompt
    Accessible.searchEdit: true

    Keys.onEscapePressed: text.length > 0 ? empty() : finished()
    Keys.onDownPressed: finished()
    Keys.onReturnPressed: finished()
    Keys.onEnterPressed: finished()

    onTextEdited: searched(text)

    function empty(): void {
        clear();
        searched("");
    }

    background: Rectangle {
        color: Theme.card
        radius: Theme.smallRadius

        border.color: Theme.controlBorder
        border.width: Theme.borderWidth

        FocusRing {
            shown: root.activeFocus
        }
    }

    Symbol {
        x: Theme.small
        name: "magnifyingglass"
        anchors.verticalCenter: parent.verticalCenter
    }

    PlainText {
        x: root.leftPadding
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.secondaryText
        elide: Text.ElideRight
        text: root.prompt
        visible: root.text.length === 0 && root.preeditText.length === 0
        width: root.width - root.leftPadding - root.rightPadding
        wrapMode: Text.NoWrap

        Accessible.ignored: true
    }

    T.AbstractButton {
        anchors.right: parent.right
        width: root.height
        height: root.height
        focusPolicy: Qt.NoFocus
        visible: root.text.length > 0

        // Escape does the same, and on the keyboard it is nearer.
        Accessible.ignored: true

        onClicked: {
            root.empty();
            root.forceActiveFocus();
        }

        HoverHandler {
            cursorShape: Qt.ArrowCursor
        }

        contentItem: Symbol {
            name: "xmark.circle.fill"
        }
    }
}
