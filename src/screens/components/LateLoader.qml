import QtQuick

// What most starts never show: it is made when it is first wanted, and stays.
Loader {
    id: root

    required property bool wanted

    active: false

    Component.onCompleted: root.active = root.wanted

    onWantedChanged: root.active = root.active || root.wanted
}
