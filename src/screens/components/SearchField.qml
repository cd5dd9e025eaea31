import QtQuick
import QtQuick.Templates as T

// A search that is asked for with Return or the button, never by typing alone: while a text is
// being typed nothing moves.
FocusScope {
    id: root

    // What was last searched for.
    required property string text

    property string placeholder: ""
    property string fieldName: "Package search"
    property string fieldHelp: "Type a formula or cask search term, then press Return or choose Search."
    // Between the first letter and Return, or until the field is left. What the user is typing is
    // not taken away by a text from elsewhere.
    property bool editing: false

    signal committed(string text)
    // What was found is needed, which lies below.
    signal downPressed

    implicitWidth: 2 * Theme.sidebarWidth
    implicitHeight: Math.max(Theme.huge, 2 * Theme.bodySize + Theme.tiny)

    onTextChanged: show()
    onEditingChanged: show()

    Component.onCompleted: show()

    function show(): void {
        if (!editing && shown.last !== text) {
            shown.last = text;
            field.text = text;
        }
    }

    function commit(): void {
        shown.last = field.text;
        committed(field.text);
        root.editing = false;
    }

    // For the shortcut that leads here: the next letter begins a new search.
    function takeFocus(): void {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        field.selectAll();
    }

    QtObject {
        id: shown

        // The last text that came from outside or went there. A text that was typed and not yet
        // searched for stays, also after the field was left.
        property string last: ""
    }

    T.TextField {
        id: field

        anchors.left: parent.left
        anchors.right: button.left
        anchors.rightMargin: Theme.small
        anchors.verticalCenter: parent.verticalCenter
        height: root.implicitHeight
        color: Theme.text
        focus: true
        font.family: Theme.family
        font.pixelSize: Theme.bodySize
        hoverEnabled: true
        leftPadding: Theme.small + Theme.symbolSize + Theme.small
        opacity: enabled ? 1 : Theme.disabledOpacity
        // Shown by nobody, but Qt takes it for the description when assistive technology comes.
        placeholderText: root.fieldHelp
        rightPadding: Theme.small
        selectByMouse: true
        selectedTextColor: Theme.selectionText
        selectionColor: Theme.selection
        verticalAlignment: TextInput.AlignVCenter

        Accessible.role: Accessible.EditableText
        Accessible.name: root.fieldName
        Accessible.description: root.fieldHelp
        Accessible.searchEdit: true

        Keys.onReturnPressed: root.commit()
        Keys.onEnterPressed: root.commit()
        Keys.onDownPressed: root.downPressed()

        onActiveFocusChanged: if (!activeFocus) root.editing = false
        onTextEdited: root.editing = true

        background: Rectangle {
            color: Theme.card
            radius: Theme.smallRadius

            border.color: field.hovered ? Theme.secondaryText : Theme.controlBorder
            border.width: Theme.borderWidth

            Symbol {
                name: "magnifyingglass"
                anchors.left: parent.left
                anchors.leftMargin: Theme.small
                anchors.verticalCenter: parent.verticalCenter
            }

            PlainText {
                anchors.fill: parent
                anchors.leftMargin: field.leftPadding
                anchors.rightMargin: field.rightPadding
                color: Theme.secondaryText
                elide: Text.ElideRight
                text: root.placeholder
                verticalAlignment: Text.AlignVCenter
                visible: field.text.length === 0 && field.preeditText.length === 0
                wrapMode: Text.NoWrap

                Accessible.ignored: true
            }

            FocusRing {
                shown: field.activeFocus
            }
        }
    }

    ActionButton {
        id: button

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        height: root.implicitHeight
        accessibleName: "Search packages"
        help: "Runs a package search using the current search field text."
        text: "Search"

        onClicked: root.commit()
    }
}
