import QtQuick
import Quillmere

// Now at the top, the next hours below.
Item {
    id: panel

    required property WeatherModel weather

    FigureText {
        id: temperature

        x: panel.LayoutMirroring.enabled ? parent.width - width - 26 : 26
        y: 12
        text: panel.weather.temperature
        font: Type.display
        color: Ink.content
        Accessible.role: Accessible.StaticText
        Accessible.name: panel.weather.accessibleText
    }
    Text {
        anchors.left: temperature.left
        anchors.top: temperature.bottom
        text: panel.weather.feelsLike
        textFormat: Text.PlainText
        font: Type.text
        color: Ink.secondary
        Accessible.ignored: true
    }

    Column {
        anchors.left: temperature.right
        anchors.leftMargin: 28
        anchors.right: details.left
        anchors.rightMargin: 20
        y: 22
        spacing: 2

        Text {
            width: parent.width
            text: panel.weather.condition
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font: Type.headline
            color: Ink.content
            Accessible.ignored: true
        }
        Item {
            id: place

            width: Math.min(placeName.implicitWidth, parent.width - range.width)
            height: placeName.height
            anchors.left: parent.left
            activeFocusOnTab: true

            Accessible.role: Accessible.Button
            Accessible.name: qsTr("Choose a place")
            Accessible.onPressAction: panel.weather.openSearch()
            Keys.onReturnPressed: panel.weather.openSearch()
            Keys.onSpacePressed: panel.weather.openSearch()

            Text {
                id: placeName

                width: parent.width
                text: panel.weather.place
                textFormat: Text.PlainText
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
                font.family: Type.text.family
                font.pixelSize: Type.text.pixelSize
                font.underline: hover.hovered || place.activeFocus
                color: hover.hovered || place.activeFocus ? Ink.content : Ink.body
            }
            Text {
                id: range

                anchors.left: parent.right
                width: text === "" ? 0 : implicitWidth
                text: panel.weather.range === "" ? "" : " · " + panel.weather.range
                textFormat: Text.PlainText
                font: Type.text
                color: Ink.body
                Accessible.ignored: true
            }
            HoverHandler {
                id: hover
            }
            MouseArea {
                anchors.fill: parent
                anchors.margins: -4
                onPressed: panel.weather.openSearch()
            }
        }
        Text {
            width: parent.width
            text: panel.weather.source
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font: Type.text
            color: Ink.secondary
        }
    }

    Column {
        id: details

        anchors.right: parent.right
        anchors.rightMargin: 26
        y: 20
        spacing: 6

        Repeater {
            model: panel.weather.details

            delegate: Row {
                required property var modelData

                anchors.right: parent.right
                spacing: 8

                Text {
                    text: modelData.name
                    textFormat: Text.PlainText
                    font: Type.text
                    color: Ink.secondary
                    Accessible.ignored: true
                }
                Text {
                    text: modelData.value
                    textFormat: Text.PlainText
                    font: Type.text
                    color: Ink.content
                    Accessible.ignored: true
                }
            }
        }
    }

    Row {
        id: hours

        x: 14
        y: 102
        width: parent.width - 28

        Repeater {
            model: panel.weather.hours

            delegate: Column {
                required property var modelData

                width: hours.width / 8
                spacing: 5

                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.hour + ", " + modelData.temperature

                Text {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: modelData.hour
                    textFormat: Text.PlainText
                    font: Type.text
                    color: Ink.secondary
                }
                Glyph {
                    width: 24
                    height: 24
                    anchors.horizontalCenter: parent.horizontalCenter
                    symbol: modelData.symbol
                    color: modelData.color
                }
                FigureText {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: modelData.temperature
                    font: Type.text
                    color: Ink.content
                }
            }
        }
    }
}
