import QtQuick
import Quillmere

StepPage {
    id: page

    required property var setup

    title: qsTr("On this machine")
    text: qsTr("What you switched on, and what it needs here.")

    ScrollPanel {
        name: page.title

        Repeater {
            model: page.setup.sources

            Item {
                id: row

                required property var modelData

                width: parent.width
                height: Math.max(40, words.height + 8)
                visible: modelData.isOn

                Accessible.role: Accessible.ListItem
                Accessible.name: modelData.title
                Accessible.description: modelData.need

                IconTile {
                    id: tile

                    anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
                    symbol: row.modelData.symbol
                    tint: row.modelData.color
                }
                Column {
                    id: words

                    anchors {
                        left: tile.right
                        leftMargin: 10
                        right: mark.left
                        rightMargin: 8
                        verticalCenter: parent.verticalCenter
                    }

                    Text {
                        width: parent.width
                        text: row.modelData.title
                        textFormat: Text.PlainText
                        elide: Text.ElideRight
                        horizontalAlignment: Text.AlignLeft
                        font.pixelSize: 13
                        font.weight: Font.Medium
                        color: Look.text
                    }
                    Text {
                        width: parent.width
                        text: row.modelData.need
                        textFormat: Text.PlainText
                        wrapMode: Text.WordWrap
                        horizontalAlignment: Text.AlignLeft
                        font.pixelSize: 12
                        font.weight: Look.highContrast && row.modelData.isMissing ? Font.Bold : Font.Normal
                        color: row.modelData.isMissing ? Look.warning : Look.quiet
                    }
                }
                Glyph {
                    id: mark

                    anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
                    width: 14
                    height: 14
                    visible: row.modelData.isReady
                    symbol: "checkmark"
                    color: Look.good
                }
            }
        }
    }
}
