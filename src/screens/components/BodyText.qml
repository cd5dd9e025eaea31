import QtQuick

PlainText {
    lineHeight: 1.2
}
