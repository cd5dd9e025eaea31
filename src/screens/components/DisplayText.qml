import QtQuick

PlainText {
    font.pixelSize: Theme.displaySize
    font.weight: Font.DemiBold

    Accessible.role: Accessible.Heading
}
