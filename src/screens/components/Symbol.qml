import QtQuick
import Quillmere.Components

// A picture that accompanies a text. It says nothing that the text does not say, so assistive
// technology passes over it.
Item {
    id: root

    required property string name

    property int size: Theme.symbolSize
    property color color: Theme.secondaryText

    implicitWidth: size
    implicitHeight: size

    Accessible.ignored: true

    Text {
        anchors.fill: parent
        color: root.color
        font.family: Typeface.symbolFamily
        font.pixelSize: root.size
        horizontalAlignment: Text.AlignHCenter
        text: Typeface.glyph(root.name)
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter

        Accessible.ignored: true
    }
}
