import QtQuick

// Says for a moment that something was done. An `Announcer` speaks it.
Pill {
    id: root

    spoken: false
    symbolName: "checkmark.circle"
    text: ""
    tint: "green"
    visible: gone.running

    function show(words: string): void {
        root.text = words;
        gone.restart();
    }

    Timer {
        id: gone

        interval: Theme.noticeDuration
    }
}
