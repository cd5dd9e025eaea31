import QtQuick

// An action that takes something away; `prominent` where it is the answer to a question.
ActionButton {
    property bool prominent: false

    fill: prominent ? Theme.red : Theme.card
    textColor: prominent ? Theme.dangerText : Theme.red
    outline: prominent ? Theme.red : Theme.controlBorder
}
