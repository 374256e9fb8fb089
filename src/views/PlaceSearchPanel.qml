import QtQuick
import Quillmere

// Type the name of a place, take one of those that are found.
Item {
    id: panel

    required property DashboardModel model

    readonly property WeatherModel weather: model.weather

    // A press beside the list is not one on the island, which would close it.
    MouseArea {
        anchors.fill: parent
        onPressed: field.take()
    }

    Row {
        id: head

        anchors.left: parent.left
        anchors.leftMargin: 22
        anchors.right: parent.right
        anchors.rightMargin: 20
        y: 16
        spacing: 8

        TypedText {
            id: field

            width: head.width - own.width - cancel.width - 2 * head.spacing
            symbol: "magnifyingglass"
            placeholder: qsTr("City or place")
            model: panel.model
            onTextEdited: panel.weather.search(text)
            onAccepted: panel.weather.choosePlace(0)
            onCancelled: panel.weather.closeSearch()
            Keys.onDownPressed: list.forceActiveFocus()
            Component.onCompleted: take()
        }
        Button {
            id: own

            visible: panel.weather.placeIsTyped
            width: visible ? implicitWidth : 0
            text: qsTr("Use my location")
            onPressed: panel.weather.useOwnLocation()
        }
        Button {
            id: cancel

            flat: true
            symbol: "xmark"
            description: qsTr("Close")
            onPressed: panel.weather.closeSearch()
        }
    }

    Text {
        anchors.centerIn: list
        width: list.width - 40
        visible: text !== ""
        text: panel.weather.searchNote
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
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

        anchors.top: head.bottom
        anchors.topMargin: 8
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.right: parent.right
        anchors.rightMargin: 18
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: panel.weather.places

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Places found")

        delegate: Item {
            id: row

            required property var modelData
            required property int index

            width: list.width
            height: 32
            activeFocusOnTab: true

            Accessible.role: Accessible.ListItem
            Accessible.name: name.text + ", " + modelData.region
            Accessible.onPressAction: panel.weather.choosePlace(index)
            Keys.onReturnPressed: panel.weather.choosePlace(index)
            Keys.onEscapePressed: panel.weather.closeSearch()

            Rectangle {
                anchors.fill: parent
                radius: 10
                color: Ink.card
                visible: hover.hovered || row.activeFocus
                border.width: row.activeFocus ? 1.5 : 0
                border.color: Ink.content
            }
            Text {
                id: name

                anchors.left: parent.left
                anchors.leftMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, row.width * 0.55)
                text: row.modelData.name
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font: Type.text
                color: Ink.content
            }
            Text {
                anchors.left: name.right
                anchors.leftMargin: 10
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                text: row.modelData.region
                textFormat: Text.PlainText
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
                font: Type.text
                color: Ink.secondary
            }
            HoverHandler {
                id: hover
            }
            MouseArea {
                anchors.fill: parent
                onPressed: panel.weather.choosePlace(row.index)
            }
        }
    }
}
