import QtQuick

ActionButton {
}
