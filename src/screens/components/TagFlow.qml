pragma ComponentBehavior: Bound

import QtQuick

// Names in as many columns as there is room for. Where they lead somewhere, all together are one
// stop of the keyboard, and the arrow keys go from one to the next: there may be hundreds.
FocusScope {
    id: root

    required property list<string> items

    property bool leads: false
    property string accessibleName: ""

    readonly property int columns: Math.max(1, Math.floor((width + Theme.small)
                                                          / (Theme.tagWidth + Theme.small)))
    property int current: 0

    signal chosen(string text)

    implicitWidth: Theme.tagWidth
    implicitHeight: grid.implicitHeight
    activeFocusOnTab: leads

    Accessible.role: Accessible.List
    Accessible.name: accessibleName

    Keys.onPressed: event => {
        event.accepted = leads && event.modifiers === Qt.NoModifier
                         && go(current + step(event.key));
    }

    // How far a key leads; nothing for a key that does not.
    function step(key: int): int {
        return key === Qt.Key_Left ? -1 : key === Qt.Key_Right ? 1
             : key === Qt.Key_Up ? -columns : key === Qt.Key_Down ? columns
             : key === Qt.Key_Home ? -current : key === Qt.Key_End ? items.length - 1 - current : 0;
    }

    function go(index: int): bool {
        if (index === current || index < 0 || index >= items.length)
            return false;
        tags.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    Grid {
        id: grid

        columnSpacing: Theme.small
        columns: root.columns
        rowSpacing: Theme.small

        Repeater {
            id: tags

            model: root.items

            delegate: Tag {
                required property int index
                required property string modelData

                width: Math.floor((root.width - (root.columns - 1) * Theme.small) / root.columns)
                focus: index === 0
                leads: root.leads
                text: modelData

                onActiveFocusChanged: if (activeFocus) root.current = index
                onClicked: root.chosen(modelData)
            }
        }
    }
}
