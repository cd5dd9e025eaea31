import QtQuick

// Scrolls as desktops do: the wheel moves the content, a mouse does not drag it. A finger still
// may, so the owner binds its `interactive` to `dragEnabled`.
Item {
    id: root

    required property Flickable flickable

    readonly property bool dragEnabled: !hover.hovered
    readonly property real end: Math.max(flickable.originY, flickable.originY
                                         + flickable.contentHeight + flickable.bottomMargin
                                         - flickable.height)

    signal scrolled

    parent: flickable
    anchors.fill: parent

    function scrollBy(distance: real): void {
        flickable.contentY = Math.max(flickable.originY,
                                      Math.min(end, flickable.contentY + distance));
        scrolled();
    }

    HoverHandler {
        id: hover

        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }

    WheelHandler {
        onWheel: event => root.scrollBy(-(event.pixelDelta.y || event.angleDelta.y / 2))
    }
}
