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

    // A screen reader would press what is disabled, too.
    function toggle() {
        if (enabled)
            toggled(!checked);
    }

    implicitHeight: Math.max(38, words.height + 14)
    activeFocusOnTab: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.description: note
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: toggle()
    Accessible.onToggleAction: toggle()
    Keys.onSpacePressed: toggle()

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: 8
        color: "transparent"
        border.width: 2
        border.color: Look.focus
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
        id: words

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
            color: control.enabled ? Look.text : Look.quiet
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
        // Paler where it cannot be used; that is no contrast, so there it is left out.
        visible: control.enabled || !Look.highContrast
        opacity: control.enabled ? 1 : 0.5
        color: Look.highContrast ? control.checked ? Look.text : Look.card : control.checked ? "#30c95a" : Look.off
        border.width: Look.highContrast ? 1.5 : 0
        border.color: Look.line

        // A stroke for on and a ring for off, beside the knob.
        Rectangle {
            readonly property real middle: knob.atRight ? 10 : parent.width - 10

            x: middle - width / 2
            y: (parent.height - height) / 2
            width: control.checked ? 2 : 8
            height: 8
            radius: control.checked ? 0 : 4
            visible: Look.highContrast
            color: control.checked ? Look.card : "transparent"
            border.width: control.checked ? 0 : 1.5
            border.color: Look.text
        }
        Rectangle {
            id: knob

            readonly property bool atRight: control.checked !== control.LayoutMirroring.enabled

            x: atRight ? parent.width - width - 2 : 2
            y: 2
            width: 16
            height: 16
            radius: 8
            color: !Look.highContrast ? "white" : control.checked ? Look.card : Look.text

            Behavior on x {
                enabled: !Look.still
                NumberAnimation { duration: 120; easing.type: Easing.OutCubic }
            }
        }
    }
    MouseArea {
        anchors.fill: parent
        onClicked: control.toggle()
    }
}
