import QtQuick
import QtQuick.Layouts
import Quillmere.Components
import Quillmere.Updates

// How many updates there are, and how that stands to the rest.
ColumnLayout {
    id: root

    required property UpdatesViewModel viewModel

    spacing: Theme.small

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.small

        TitleText {
            text: root.viewModel.updatesText
        }

        PlainText {
            Layout.fillWidth: true
            color: Theme.secondaryText
            font.pixelSize: Theme.titleSize
            text: root.viewModel.reviewText
        }

        CaptionText {
            text: root.viewModel.upToDateText
        }
    }

    ProportionBar {
        Layout.fillWidth: true
        first: root.viewModel.updateCount
        firstTint: "blue"
        second: root.viewModel.reviewCount
        secondTint: "orange"
        third: root.viewModel.upToDateCount
        thirdTint: "green"
    }

    CaptionText {
        Layout.fillWidth: true
        text: root.viewModel.sourcesText
    }
}
