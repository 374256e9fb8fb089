import QtQuick

Item {
    id: button

    property string text
    property bool prominent: false
    property bool plain: false // a word only
    readonly property color face: prominent ? Look.accent : Look.button

    signal clicked()

    implicitWidth: Math.max(plain ? 0 : 84, label.implicitWidth + (plain ? 16 : 32))
    implicitHeight: 30
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        radius: 10
        color: "transparent"
        border.width: Look.highContrast ? 3 : 2
        border.color: Look.focus
        visible: button.activeFocus
    }
    Rectangle {
        anchors.fill: parent
        radius: 7
        visible: !button.plain || area.containsPress || hover.hovered
        color: area.containsPress ? Qt.darker(button.face, 1.15) : hover.hovered ? Qt.darker(button.face, 1.05) : button.face
        border.width: Look.highContrast ? 1 : 0
        border.color: Look.line
    }
    Text {
        id: label

        anchors.centerIn: parent
        text: button.text
        textFormat: Text.PlainText
        font.pixelSize: 13
        font.weight: button.prominent ? Font.DemiBold : Font.Normal
        color: button.prominent ? Look.accentText : button.plain ? Look.quiet : Look.text
    }
    HoverHandler {
        id: hover
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
