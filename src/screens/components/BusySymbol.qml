import QtQuick

// A symbol that turns, slowly, for as long as it shows: something goes on.
Symbol {
    id: root

    RotationAnimation on rotation {
        duration: Theme.turnDuration
        from: 0
        loops: Animation.Infinite
        running: root.visible
        to: 360
    }
}
