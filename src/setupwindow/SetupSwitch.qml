import QtQuick

// A switch with its words before it; the whole row can be pressed.
Item {
    id: control

    property string text
    property string note
    property string symbol
    property color tint: Look.quiet
    property bool checked: false

    signal toggled(bool on)

    implicitHeight: 46
    activeFocusOnTab: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.description: note
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: toggled(!checked)
    Accessible.onToggleAction: toggled(!checked)
    Keys.onSpacePressed: toggled(!checked)

    Rectangle {
        anchors.fill: parent
        anchors.margins: 3
        radius: 8
        color: "transparent"
        border.width: 2
        border.color: Look.accent
        visible: control.activeFocus
    }
    IconTile {
        id: tile

        anchors { left: parent.left; leftMargin: 12; verticalCenter: parent.verticalCenter }
        visible: control.symbol !== ""
        symbol: control.symbol
        tint: control.tint
    }
    Column {
        anchors {
            left: tile.visible ? tile.right : parent.left
            leftMargin: tile.visible ? 10 : 14
            right: track.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        spacing: 1

        Text {
            width: parent.width
            text: control.text
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: 13
            font.weight: control.note === "" ? Font.Normal : Font.Medium
            color: Look.text
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: control.note
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: 12
            color: Look.quiet
        }
    }
    Rectangle {
        id: track

        anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
        width: 34
        height: 20
        radius: 10
        color: control.checked ? "#30c95a" : Look.off
        border.width: Look.highContrast ? 1 : 0
        border.color: Look.line

        Rectangle {
            readonly property bool atRight: control.checked !== control.LayoutMirroring.enabled

            x: atRight ? parent.width - width - 2 : 2
            y: 2
            width: 16
            height: 16
            radius: 8
            color: "white"

            Behavior on x {
                enabled: !Look.still
                NumberAnimation { duration: 120; easing.type: Easing.OutCubic }
            }
        }
    }
    MouseArea {
        anchors.fill: parent
        onClicked: control.toggled(!control.checked)
    }
}
