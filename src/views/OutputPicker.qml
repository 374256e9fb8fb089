import QtQuick
import Quillmere

// Where sound can play; a press sends it there.
Item {
    id: picker

    required property DashboardModel model

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Sound output")

    // A press beside the list closes it instead of the island.
    MouseArea {
        anchors.fill: parent
        onPressed: picker.model.closePicker()
    }

    Text {
        id: title

        anchors.left: parent.left
        anchors.leftMargin: 26
        anchors.top: parent.top
        anchors.topMargin: 18
        text: qsTr("Sound output")
        textFormat: Text.PlainText
        font: Type.title
        color: Ink.content
    }
    Button {
        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: title.verticalCenter
        flat: true
        symbol: "xmark"
        description: qsTr("Close")
        onPressed: picker.model.closePicker()
    }
    Text {
        anchors.centerIn: parent
        visible: list.count === 0
        text: qsTr("No output device")
        textFormat: Text.PlainText
        font: Type.text
        color: Ink.secondary
    }

    // Scrolled to its end, a list has no more use for the gesture; the island is not to close of it.
    MouseArea {
        anchors.fill: list
        acceptedButtons: Qt.NoButton
        onWheel: (wheel) => wheel.accepted = list.contentHeight > list.height
    }

    ListView {
        id: list

        anchors.top: title.bottom
        anchors.topMargin: 10
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.right: parent.right
        anchors.rightMargin: 18
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: picker.model.outputs

        delegate: Item {
            id: row

            required property var modelData

            width: list.width
            height: 34
            activeFocusOnTab: true

            Accessible.role: Accessible.ListItem
            Accessible.name: modelData.name
            Accessible.checked: modelData.isCurrent
            Accessible.onPressAction: picker.model.chooseOutput(modelData.id)
            Keys.onReturnPressed: picker.model.chooseOutput(modelData.id)
            Keys.onSpacePressed: picker.model.chooseOutput(modelData.id)

            Rectangle {
                anchors.fill: parent
                radius: 10
                color: Ink.card
                visible: hover.hovered || row.activeFocus
                border.width: row.activeFocus ? 1.5 : 0
                border.color: Ink.content
            }
            Glyph {
                id: glyph

                width: 18
                height: 18
                anchors.left: parent.left
                anchors.leftMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                symbol: row.modelData.symbol
                color: Ink.content
            }
            Text {
                anchors.left: glyph.right
                anchors.leftMargin: 12
                anchors.right: check.left
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                text: row.modelData.name
                textFormat: Text.PlainText
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
                font: Type.text
                color: row.modelData.isCurrent ? Ink.content : Ink.body
            }
            Glyph {
                id: check

                width: 16
                height: 16
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                visible: row.modelData.isCurrent
                symbol: "checkmark"
                color: Ink.accent
            }
            HoverHandler {
                id: hover
            }
            MouseArea {
                anchors.fill: parent
                onPressed: picker.model.chooseOutput(row.modelData.id)
            }
        }
    }
}
