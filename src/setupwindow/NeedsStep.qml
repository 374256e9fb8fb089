import QtQuick
import Quillmere

StepPage {
    id: page

    required property var setup

    title: qsTr("On this machine")
    text: qsTr("What you switched on, and what it needs here.")

    Panel {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: Math.min(parent.height, list.contentHeight + 8)

        Flickable {
            id: list

            anchors { fill: parent; margins: 4 }
            contentHeight: rows.height
            clip: true
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: interactive
            Behavior on contentY {
                enabled: !Look.still && !list.moving
                NumberAnimation { duration: 140; easing.type: Easing.OutCubic }
            }
            Accessible.role: Accessible.List
            Accessible.name: page.title
            Keys.onDownPressed: contentY = Math.min(contentHeight - height, contentY + 40)
            Keys.onUpPressed: contentY = Math.max(0, contentY - 40)

            Column {
                id: rows

                width: list.width

                Repeater {
                    model: page.setup.sources

                    Item {
                        id: row

                        required property var modelData

                        width: list.width
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
        Rectangle {
            anchors { right: parent.right; rightMargin: 3 }
            y: list.y + list.visibleArea.yPosition * list.height
            width: 3
            height: list.visibleArea.heightRatio * list.height
            radius: 1.5
            visible: list.interactive
            color: Look.quiet
            opacity: 0.5
        }
        Rectangle {
            anchors.fill: parent
            radius: 9
            color: "transparent"
            border.width: 2
            border.color: Look.accent
            visible: list.activeFocus
        }
    }
}
