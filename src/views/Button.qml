import QtQuick
import Quillmere

// Glyph, text or both. A press is enough: nothing here is worth a second thought.
Item {
    id: button

    property string symbol
    property string text
    property string description: text
    property bool flat: false
    property bool chosen: false // one of several
    property bool prominent: false // what is pressed most

    readonly property color ink: prominent ? "black" : chosen || !flat || symbol !== "" ? Ink.content : Ink.secondary
    property real maximumWidth: 400

    signal pressed()

    width: text === "" ? 28 : Math.min(row.implicitWidth + 24, maximumWidth)
    height: flat ? 28 : 32
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: text === "" ? description : text
    Accessible.description: description
    Accessible.checked: chosen
    Accessible.onPressAction: pressed()
    Keys.onReturnPressed: pressed()
    Keys.onSpacePressed: pressed()

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: {
            if (button.prominent)
                return area.containsPress ? Ink.accentPressed : Ink.accent;
            return area.containsPress || button.chosen ? Ink.pressed : hover.hovered ? Ink.raised : Ink.card;
        }
        visible: !button.flat || button.chosen || hover.hovered || area.containsPress || button.activeFocus
    }
    FocusRing {}
    Row {
        id: row

        anchors.centerIn: parent
        spacing: 8

        Glyph {
            id: glyph

            width: 16
            height: 16
            anchors.verticalCenter: parent.verticalCenter
            visible: button.symbol !== ""
            symbol: button.symbol
            color: button.ink
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, button.maximumWidth - 48)
            visible: text !== ""
            text: button.text
            textFormat: Text.PlainText
            elide: Text.ElideRight
            font: Type.text
            color: button.ink
        }
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
