import QtQuick
import Quillmere

// Files dropped on the island. While one is dragged, all of it is the place to drop it.
Item {
    id: page

    required property DashboardModel model

    readonly property bool empty: model.trayEmpty

    DashedFrame {
        anchors.fill: parent
        anchors.leftMargin: 24
        anchors.rightMargin: 24
        anchors.topMargin: 20
        anchors.bottomMargin: 4
        radius: 16
        color: page.model.dragging ? Ink.content : Ink.faint
        visible: page.empty || page.model.dragging

        Column {
            anchors.centerIn: parent
            spacing: 8

            Glyph {
                width: 28
                height: 28
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: "tray.and.arrow.down.fill"
                color: page.model.dragging ? Ink.content : Ink.secondary
            }
            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: page.model.dragging ? qsTr("Drop to add") : qsTr("Drop files here")
                textFormat: Text.PlainText
                font: Type.title
                color: page.model.dragging ? Ink.content : Ink.secondary
            }
        }
    }

    // Scrolled to its end, a list has no more use for the gesture; the island is not to close of it.
    MouseArea {
        anchors.fill: list
        acceptedButtons: Qt.NoButton
        onWheel: (wheel) => wheel.accepted = list.contentHeight > list.height
    }

    ListView {
        id: list

        anchors.fill: parent
        anchors.leftMargin: 18
        anchors.rightMargin: 18
        anchors.topMargin: 16
        visible: !page.empty && !page.model.dragging
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: page.model.trayFiles

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Dropped files")

        delegate: Item {
            id: row

            required property var modelData

            width: list.width
            height: 42
            activeFocusOnTab: true

            Accessible.role: Accessible.ListItem
            Accessible.name: modelData.name
            Accessible.onPressAction: page.model.openFile(modelData.url)
            Keys.onReturnPressed: page.model.openFile(modelData.url)
            Keys.onSpacePressed: page.model.openFile(modelData.url)

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

                width: 20
                height: 20
                anchors.left: parent.left
                anchors.leftMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                symbol: "doc.fill"
                color: Ink.content
            }
            Column {
                anchors.left: glyph.right
                anchors.leftMargin: 12
                anchors.right: remove.left
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter

                Text {
                    width: parent.width
                    text: row.modelData.name
                    textFormat: Text.PlainText
                    elide: Text.ElideMiddle
                    horizontalAlignment: Text.AlignLeft
                    font: Type.title
                    color: Ink.content
                }
                Text {
                    width: parent.width
                    text: row.modelData.folder
                    textFormat: Text.PlainText
                    elide: Text.ElideMiddle
                    horizontalAlignment: Text.AlignLeft
                    font: Type.text
                    color: Ink.secondary
                }
            }
            HoverHandler {
                id: hover
            }
            MouseArea {
                anchors.fill: parent
                onPressed: page.model.openFile(row.modelData.url)
            }
            Button {
                id: remove

                anchors.right: parent.right
                anchors.rightMargin: 6
                anchors.verticalCenter: parent.verticalCenter
                flat: true
                symbol: "xmark"
                description: qsTr("Remove from the tray")
                onPressed: page.model.removeFile(row.modelData.url)
            }
        }
    }
}
