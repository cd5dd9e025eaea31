import QtQuick

// What most starts never show: it is made when it is first needed, and stays.
Loader {
    id: root

    required property bool needed

    active: false

    Component.onCompleted: root.active = root.needed

    onNeededChanged: root.active = root.active || root.needed
}
