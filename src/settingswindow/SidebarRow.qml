import QtQuick
import Quillmere
import Quillmere.Settings

// A page, or something found on one.
Item {
    id: row

    required property var modelData
    property bool chosen: false
    property bool focused: false
    property bool ready: false // Return in the search field opens it

    signal opened()

    implicitHeight: modelData.subtitle === "" ? 32 : 42
    Accessible.role: Accessible.ListItem
    Accessible.name: modelData.title
    Accessible.description: modelData.subtitle
    Accessible.selectable: true
    Accessible.selected: chosen
    Accessible.onPressAction: opened()

    Rectangle {
        anchors.fill: parent
        radius: 7
        color: row.chosen ? Theme.accent : pointer.hovered || row.ready ? Theme.hovered : "transparent"
    }
    Rectangle {
        anchors.fill: parent
        // A gap tells it from the ground of the chosen row.
        anchors.margins: -4
        radius: 10
        visible: row.focused
        color: "transparent"
        border.width: 2
        border.color: Theme.focus
    }
    Rectangle {
        id: tile

        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: 22
        height: 22
        radius: 6
        color: row.modelData.color

        Glyph {
            anchors.centerIn: parent
            width: 14
            height: 14
            symbol: row.modelData.symbol
            color: "white"
        }
    }
    Column {
        anchors.left: tile.right
        anchors.leftMargin: 9
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter

        Text {
            width: parent.width
            text: row.modelData.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            font: Theme.font(13, Font.Normal)
            color: row.chosen ? Theme.accentText : Theme.text
            horizontalAlignment: Text.AlignLeft
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            text: row.modelData.subtitle
            textFormat: Text.PlainText
            elide: Text.ElideRight
            font: Theme.font(11, Font.Normal)
            color: row.chosen ? Theme.accentText : Theme.muted
            visible: text !== ""
            horizontalAlignment: Text.AlignLeft
            Accessible.ignored: true
        }
    }
    HoverHandler {
        id: pointer
    }
    TapHandler {
        onTapped: row.opened()
    }
}
