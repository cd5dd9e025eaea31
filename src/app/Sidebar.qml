pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.App
import Quillmere.Components

// The nine sections. Up and Down move the selection while the sidebar has the focus.
FocusScope {
    id: root

    required property ContentViewModel viewModel

    Rectangle {
        anchors.fill: parent
        color: Theme.sidebar
    }

    Hairline {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.top: parent.top
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.medium
        spacing: Theme.medium

        TitleText {
            Layout.leftMargin: Theme.small
            Layout.topMargin: Theme.small
            text: "Quillmere"
        }

        ListView {
            id: list

            Layout.fillHeight: true
            Layout.fillWidth: true
            boundsBehavior: Flickable.StopAtBounds
            currentIndex: root.viewModel.selectedIndex
            focus: true
            activeFocusOnTab: true
            highlightMoveDuration: 0
            keyNavigationEnabled: false
            model: root.viewModel.sections
            spacing: Theme.tiny / 2

            Accessible.role: Accessible.List
            Accessible.name: "Sections"

            Keys.onUpPressed: root.viewModel.selectIndex(root.viewModel.selectedIndex - 1)
            Keys.onDownPressed: root.viewModel.selectIndex(root.viewModel.selectedIndex + 1)

            delegate: SidebarRow {
                width: ListView.view.width
                listFocused: list.activeFocus
                selected: ListView.isCurrentItem

                onClicked: root.viewModel.selectIndex(index)
            }
        }
    }
}
