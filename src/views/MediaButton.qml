import QtQuick
import Quillmere

// A bare glyph of the transport; the area around it is easy to hit.
Item {
    id: button

    required property string symbol
    required property string text
    property real glyphSize: 22
    property color color: Ink.content
    property bool on: false // it is a switch, and switched on

    signal pressed()

    width: glyphSize + 14
    height: width
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.checked: on
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
    Disc {
        width: 4
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: -1
        color: Ink.accent
        visible: button.on
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
