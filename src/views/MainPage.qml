import QtQuick
import Quillmere

// What is live now: time, where sound goes, and the latest activity.
Item {
    id: page

    required property DashboardModel model

    readonly property bool busy: model.activityCount > 0

    Column {
        anchors.left: parent.left
        anchors.leftMargin: 26
        anchors.top: parent.top
        anchors.topMargin: page.busy ? 18 : 44

        FigureText {
            anchors.left: parent.left
            text: page.model.time
            font: Type.display
            color: Ink.content
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Text {
            anchors.left: parent.left
            text: page.model.date
            textFormat: Text.PlainText
            font: Type.text
            color: Ink.secondary
        }
    }

    Button {
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.top: parent.top
        anchors.topMargin: 24
        maximumWidth: 260
        visible: text !== ""
        symbol: page.model.outputSymbol
        text: page.model.outputName
        description: qsTr("Choose where sound plays")
        onPressed: page.model.openPicker()
    }

    ActivityCard {
        anchors.left: parent.left
        anchors.leftMargin: 24
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 6
        visible: page.busy
        model: page.model
    }
}
