import QtQuick
import Quillmere.Components
import Quillmere.Screens

// The first thing that a new user sees.
Sheet {
    id: root

    signal finished
    signal selectPrefixWanted
}
