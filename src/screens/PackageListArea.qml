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

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.small
        visible: root.listed

        CaptionText {
            Layout.fillWidth: true
            text: root.summary

            // The list says it.
            Accessible.ignored: true
        }

        Card {
            Layout.fillHeight: true
            Layout.fillWidth: true
            Layout.maximumHeight: list.contentHeight + 2 * padding
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

        Item {
            Layout.fillHeight: true
        }
    }

    Item {
        id: statePlace

        anchors.fill: parent
    }
}
