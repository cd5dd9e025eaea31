pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.Components

// Where a screen lists packages, with a line that counts them; what the screen says instead while
// there is nothing to list lies in the same place, so that nothing around it moves.
FocusScope {
    id: root

    required property bool listed
    required property QtObject model
    required property Component delegate
    required property string summary
    required property string accessibleSummary

    default property alias states: statePlace.data

    signal opened(int row)

    // The keyboard comes in, if there is anything.
    function takeFocus(): void {
        if (listed)
            forceActiveFocus(Qt.TabFocusReason);
    }

    FocusScope {
        anchors.fill: parent
        focus: root.listed
        visible: root.listed

        CaptionText {
            id: count

            text: root.summary

            // The list says it.
            Accessible.ignored: true
        }

        Card {
            anchors.left: parent.left
            anchors.right: parent.right
            y: count.height + Theme.small
            height: Math.min(parent.height - y, list.contentHeight + 2 * padding)
            padding: Theme.tiny

            PackageList {
                id: list

                Layout.fillHeight: true
                Layout.fillWidth: true
                delegate: root.delegate
                focus: true
                model: root.model
                summary: root.accessibleSummary

                onOpened: row => root.opened(row)
            }
        }
    }

    FocusScope {
        id: statePlace

        anchors.fill: parent
        focus: !root.listed
    }
}
