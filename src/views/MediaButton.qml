import QtQuick
import Quillmere

// A bare glyph of the transport; the area around it is easy to hit.
Item {
    id: button

    required property string symbol
    required property string text
    property real glyphSize: 22
    property color color: Ink.content

    signal pressed()

    width: glyphSize + 14
    height: width
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: pressed()
    Keys.onReturnPressed: pressed()
    Keys.onSpacePressed: pressed()

    Disc {
        anchors.fill: parent
        color: area.containsPress ? Ink.pressed : Ink.raised
        visible: hover.hovered || area.containsPress || button.activeFocus
        border.width: button.activeFocus ? 1.5 : 0
        border.color: Ink.content
    }
    Glyph {
        anchors.centerIn: parent
        width: button.glyphSize
        height: width
        symbol: button.symbol
        color: hover.hovered ? Ink.content : button.color
    }
    HoverHandler {
        id: hover
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onPressed: button.pressed()
    }
}
