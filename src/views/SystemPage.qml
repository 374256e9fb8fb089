import QtQuick
import Quillmere

// How busy the machine is: processor, memory and disk, now and in the last minutes.
Item {
    id: page

    required property SystemModel model
    required property bool live

    readonly property real columnWidth: (width - 2 * 26 - 2 * 18) / 3

    Text {
        anchors.centerIn: parent
        visible: !page.model.hasSamples
        text: qsTr("Measuring…")
        textFormat: Text.PlainText
        font: Type.text
        color: Ink.secondary
    }

    Row {
        anchors.fill: parent
        anchors.leftMargin: 26
        anchors.rightMargin: 26
        spacing: 18

        Repeater {
            // The gauges stay, their values change.
            model: page.model.hasSamples ? 3 : 0

            delegate: Item {
                id: gauge

                required property int index

                readonly property var face: page.model.gauges[index]

                width: page.columnWidth
                height: parent.height

                Accessible.role: Accessible.StaticText
                Accessible.name: face.accessibleText

                Ring {
                    id: ring

                    width: 76
                    height: 76
                    y: 22
                    thickness: 7
                    color: gauge.face.color

                    Follower on fraction {
                        to: gauge.face.fraction
                        curve: Follower.Linear
                        enabled: page.live
                        riseDuration: 200
                        fallDuration: 200
                    }

                    FigureText {
                        anchors.centerIn: parent
                        text: gauge.face.figures
                        font: Type.title
                        color: Ink.content
                    }
                }
                Column {
                    anchors.left: ring.right
                    anchors.leftMargin: 12
                    anchors.right: parent.right
                    anchors.verticalCenter: ring.verticalCenter
                    spacing: 1

                    Text {
                        width: parent.width
                        text: gauge.face.name
                        textFormat: Text.PlainText
                        elide: Text.ElideRight
                        horizontalAlignment: Text.AlignLeft
                        font: Type.title
                        color: Ink.content
                    }
                    Text {
                        width: parent.width
                        text: gauge.face.amount
                        textFormat: Text.PlainText
                        wrapMode: Text.WordWrap
                        maximumLineCount: 2
                        elide: Text.ElideRight
                        horizontalAlignment: Text.AlignLeft
                        font: Type.text
                        color: Ink.secondary
                    }
                }
                HistoryGraph {
                    width: parent.width
                    height: 52
                    y: 122
                    samples: gauge.face.history
                    color: gauge.face.color
                }
            }
        }
    }
}
