import QtQuick

PlainText {
    font.pixelSize: Theme.titleSize
    font.weight: Font.DemiBold

    Accessible.role: Accessible.Heading
}
