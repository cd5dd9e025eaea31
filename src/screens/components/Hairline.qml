import QtQuick

Rectangle {
    implicitWidth: Theme.borderWidth
    implicitHeight: Theme.borderWidth
    color: Theme.hairline
}
