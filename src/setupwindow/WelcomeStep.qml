import QtQuick

StepPage {
    id: page

    title: qsTr("Welcome to Quillmere")
    text: qsTr("A small black island at the top of your screen. It grows for a moment when something happens, and stays out of the way when nothing does.")

    Portrait {
        id: portrait

        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 108
        still: Look.still
    }
    Column {
        anchors { left: parent.left; right: parent.right; top: portrait.bottom; topMargin: 14 }
        spacing: 7

        Repeater {
            model: [
                qsTr("Press it to open the dashboard: what plays, the weather, the load, files."),
                qsTr("Scroll over it to change the volume."),
                qsTr("It is quit, opened and set up from the icon in the status bar.")
            ]

            Item {
                required property string modelData

                width: parent.width
                height: tip.height

                Rectangle {
                    anchors.left: parent.left
                    y: 6
                    width: 5
                    height: 5
                    radius: 2.5
                    color: Look.accent
                }
                Text {
                    id: tip

                    anchors { left: parent.left; leftMargin: 16; right: parent.right }
                    text: parent.modelData
                    textFormat: Text.PlainText
                    wrapMode: Text.WordWrap
                    horizontalAlignment: Text.AlignLeft
                    font.pixelSize: 13
                    color: Look.text
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
        }
    }
}
