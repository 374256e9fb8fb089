import QtQuick

StepPage {
    id: page

    required property var setup

    title: qsTr("All set")
    text: qsTr("Change the volume and look at the top of the screen.")

    Column {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        spacing: 14

        Panel {
            width: parent.width
            height: login.height + 8

            SetupSwitch {
                id: login

                x: 4
                y: 4
                width: parent.width - 8
                height: 54
                text: qsTr("Start at login")
                note: qsTr("The island is there whenever you are.")
                symbol: "rectangle.topthird.inset.filled"
                tint: "#3a3a3c"
                checked: page.setup.launchAtLogin
                onToggled: on => page.setup.launchAtLogin = on
            }
        }
        Column {
            width: parent.width
            spacing: 8

            Repeater {
                model: [
                    qsTr("Press the island to open the dashboard: what plays, the weather, the load, files."),
                    qsTr("Scroll over it to change the volume."),
                    qsTr("The icon in the status bar has the settings, which show this window again, and ends Quillmere.")
                ]

                Item {
                    required property string modelData

                    width: parent.width
                    height: tip.height

                    Rectangle {
                        anchors.left: parent.left
                        anchors.leftMargin: 2
                        y: 6
                        width: 5
                        height: 5
                        radius: 2.5
                        color: Look.accent
                    }
                    Text {
                        id: tip

                        anchors { left: parent.left; leftMargin: 17; right: parent.right }
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
}
