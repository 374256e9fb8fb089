import QtQuick

StepPage {
    id: page

    required property var setup

    title: qsTr("Ready")
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
        Text {
            width: parent.width
            text: qsTr("The settings show this again whenever you like.")
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: 13
            color: Look.quiet
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
