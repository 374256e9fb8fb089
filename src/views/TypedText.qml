import QtQuick
import Quillmere

// One line to type in. The keyboard is the island's from the moment the line is taken until it is
// left, by Escape or by turning to another window.
Item {
    id: field

    required property DashboardModel model
    property string symbol
    property string placeholder
    property bool refused: false // the text is not what is wanted
    property alias text: input.text

    signal textEdited()
    signal accepted()
    signal cancelled()

    function take() {
        model.typing = true;
        input.forceActiveFocus();
    }

    height: 32

    Component.onDestruction: model.typing = false

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Ink.card
        border.width: input.activeFocus ? 1.5 : 0
        border.color: field.refused ? "#ff6464" : Ink.content
    }
    Glyph {
        id: glyph

        width: 16
        height: 16
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        symbol: field.symbol
        color: Ink.secondary
    }
    TextInput {
        id: input

        anchors.left: glyph.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        clip: true
        maximumLength: 100
        font: Type.text
        color: Ink.content
        selectionColor: Ink.faint
        selectedTextColor: Ink.content
        cursorVisible: activeFocus

        Accessible.role: Accessible.EditableText
        Accessible.name: field.placeholder

        onTextEdited: field.textEdited()
        onAccepted: field.accepted()
        Keys.onEscapePressed: field.cancelled()
    }
    Text {
        anchors.left: input.left
        anchors.right: input.right
        anchors.verticalCenter: parent.verticalCenter
        visible: input.text === "" && input.preeditText === ""
        text: field.placeholder
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        font: Type.text
        color: Ink.secondary
    }
    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        visible: !input.activeFocus
        onPressed: field.take()
    }
}
