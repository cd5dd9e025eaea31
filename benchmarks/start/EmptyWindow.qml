import QtQuick.Controls.Basic

// As large as the program's own window is at first.
ApplicationWindow {
    width: 1120
    height: 760
    title: "Empty"
    visible: true
}
