import QtQuick

// The one action that a place is there for.
ActionButton {
    fill: Theme.accent
    textColor: Theme.accentText
    outline: Theme.accent
}
