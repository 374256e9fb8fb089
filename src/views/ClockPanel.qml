import QtQuick
import Quillmere

// The time, and where sound goes.
Item {
    id: panel

    required property DashboardModel model

    Column {
        anchors.left: parent.left
        anchors.leftMargin: 26
        anchors.top: parent.top

        FigureText {
            anchors.left: parent.left
            text: panel.model.time
            font: Type.display
            color: Ink.content
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Text {
            anchors.left: parent.left
            text: panel.model.date
            textFormat: Text.PlainText
            font: Type.text
            color: Ink.secondary
        }
    }

    Button {
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.top: parent.top
        anchors.topMargin: 6
        maximumWidth: 260
        visible: text !== ""
        symbol: panel.model.outputSymbol
        text: panel.model.outputName
        description: qsTr("Choose where sound plays")
        onPressed: panel.model.openPicker()
    }
}
