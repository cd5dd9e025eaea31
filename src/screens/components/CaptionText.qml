import QtQuick

PlainText {
    color: Theme.secondaryText
    font.pixelSize: Theme.captionSize
}
