import QtQuick

// The one action that a place is there for; an ordinary button while another one is.
ActionButton {
    property bool prominent: true

    fill: prominent ? Theme.accent : Theme.card
    textColor: prominent ? Theme.accentText : Theme.text
    outline: prominent ? Theme.accent : Theme.controlBorder
}
