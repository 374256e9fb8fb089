import QtQuick
import Quillmere

// One of three tools: its ring at the left, what can be done with it at the right.
Item {
    id: page

    required property DashboardModel model
    required property bool live

    readonly property TimerModel timer: model.timer

    Ring {
        id: ring

        width: 124
        height: 124
        anchors.left: parent.left
        anchors.leftMargin: 36
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: 6
        thickness: 8
        color: page.timer.color

        Accessible.role: Accessible.StaticText
        Accessible.name: page.timer.title + ", " + page.timer.time

        Follower on fraction {
            to: page.timer.fraction
            curve: Follower.Linear
            enabled: page.live
            riseDuration: 200
            fallDuration: 200
        }

        FigureText {
            anchors.centerIn: parent
            text: page.timer.time
            font.family: Type.headline.family
            font.pixelSize: page.timer.hasHours ? 20 : 26
            font.weight: Font.DemiBold
            color: Ink.content
        }
    }

    Column {
        anchors.left: ring.right
        anchors.leftMargin: 34
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.verticalCenter: ring.verticalCenter
        spacing: 14

        Row {
            spacing: 4

            Repeater {
                model: page.timer.tools

                delegate: Button {
                    required property int index
                    required property string modelData

                    text: modelData
                    flat: true
                    chosen: index === page.timer.tool
                    onPressed: page.timer.choose(index)
                }
            }
        }

        Item {
            width: parent.width
            height: 32

            Row {
                spacing: 8
                visible: dots.count > 0
                anchors.verticalCenter: parent.verticalCenter

                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    rightPadding: 4
                    text: page.timer.title
                    textFormat: Text.PlainText
                    font: Type.headline
                    color: Ink.content
                }
                Repeater {
                    id: dots

                    model: page.timer.dots

                    delegate: Rectangle {
                        required property int modelData

                        width: 9
                        height: 9
                        radius: 4.5
                        anchors.verticalCenter: parent.verticalCenter
                        color: modelData === 2 ? page.timer.color : "transparent"
                        border.width: modelData === 2 ? 0 : 1.5
                        border.color: modelData === 1 ? page.timer.color : Ink.faint
                    }
                }
            }
            Row {
                spacing: 5
                visible: presets.count > 0 && !page.timer.entering

                Repeater {
                    id: presets

                    model: page.timer.presets

                    delegate: Button {
                        required property int modelData

                        width: 32
                        text: modelData
                        description: qsTr("%1 minutes").arg(modelData)
                        chosen: modelData === page.timer.preset
                        onPressed: page.timer.startPreset(modelData)
                    }
                }
                Button {
                    symbol: "pencil"
                    height: 32
                    width: 32
                    description: qsTr("Another length")
                    onPressed: page.timer.openEntry()
                }
            }
            Loader {
                anchors.left: parent.left
                width: 250
                active: page.timer.entering

                sourceComponent: TypedText {
                    id: entry

                    symbol: "hourglass"
                    placeholder: qsTr("Minutes, 1:30 or 90s")
                    model: page.model
                    refused: text !== "" && wrong
                    onTextEdited: wrong = false
                    onAccepted: wrong = !page.timer.enter(text)
                    onCancelled: page.timer.closeEntry()
                    Component.onCompleted: take()

                    property bool wrong: false
                }
            }
        }

        Row {
            spacing: 8

            Button {
                text: page.timer.mainAction
                prominent: true
                onPressed: page.timer.doMain()
            }
            Button {
                visible: page.timer.canSkip
                text: qsTr("Skip")
                onPressed: page.timer.skip()
            }
            Button {
                visible: page.timer.canReset
                text: qsTr("Reset")
                onPressed: page.timer.reset()
            }
        }
    }
}
