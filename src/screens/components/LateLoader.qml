import QtQuick

// What most starts never show: it is made when it is first wanted, and stays.
Loader {
    required property bool wanted

    active: false

    Component.onCompleted: active = wanted

    onWantedChanged: active = active || wanted
}
