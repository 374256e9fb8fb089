import QtQuick
import Quillmere

// A small screen with the island on it, which shows in turn what it does.
Rectangle {
    id: picture

    property int look: 0 // resting, a level, a track
    property bool still: false

    radius: 9
    clip: true
    gradient: Gradient {
        orientation: Gradient.Horizontal
        GradientStop { position: 0; color: "#7aa7d8" }
        GradientStop { position: 1; color: "#3c5a93" }
    }

    onStillChanged: look = still ? 1 : 0
    Timer {
        interval: picture.look === 0 ? 1200 : 2600
        running: picture.visible && !picture.still
        repeat: true
        onTriggered: picture.look = (picture.look + 1) % 3
    }

    // Windows at work, to see how little of the screen it takes.
    Repeater {
        model: [
            { x: 0.1, y: 0.42, width: 0.46, lines: [0.5, 0.8, 0.7] },
            { x: 0.6, y: 0.56, width: 0.3, lines: [0.7, 0.45] }
        ]

        Rectangle {
            id: sheet

            required property var modelData

            x: picture.width * modelData.x
            y: picture.height * modelData.y
            width: picture.width * modelData.width
            height: picture.height
            radius: 8
            color: Qt.rgba(1, 1, 1, 0.13)

            Column {
                anchors { left: parent.left; right: parent.right; top: parent.top; margins: 16 }
                spacing: 10

                Repeater {
                    model: sheet.modelData.lines

                    Rectangle {
                        required property real modelData

                        width: parent.width * modelData
                        height: 6
                        radius: 3
                        color: Qt.rgba(1, 1, 1, 0.2)
                    }
                }
            }
        }
    }

    Silhouette {
        id: island

        x: (parent.width - width) / 2
        width: [168, 264, 300][picture.look]
        height: [28, 46, 54][picture.look]
        cornerRadius: Math.min(20, height / 2.2)

        Behavior on width {
            enabled: !picture.still
            NumberAnimation { duration: 420; easing.type: Easing.OutBack; easing.overshoot: 1.1 }
        }
        Behavior on height {
            enabled: !picture.still
            NumberAnimation { duration: 420; easing.type: Easing.OutBack; easing.overshoot: 1.1 }
        }

        // Opacity is stepped over quickly: two looks are never seen on top of each other.
        component Face: Item {
            required property int number
            anchors.fill: parent
            opacity: picture.look === number ? 1 : 0
            visible: opacity > 0
            Behavior on opacity {
                enabled: !picture.still
                SequentialAnimation {
                    PauseAnimation { duration: 160 }
                    NumberAnimation { duration: 140 }
                }
            }
        }

        Face {
            number: 1

            Glyph {
                anchors { left: parent.left; leftMargin: 18; verticalCenter: parent.verticalCenter }
                width: 18
                height: 18
                symbol: "speaker.wave.2.fill"
            }
            Rectangle {
                anchors { left: parent.left; leftMargin: 50; right: parent.right; rightMargin: 18; verticalCenter: parent.verticalCenter }
                height: 6
                radius: 3
                color: Qt.rgba(1, 1, 1, 0.25)

                Rectangle {
                    width: parent.width * 0.6
                    height: parent.height
                    radius: 3
                    color: "white"
                }
            }
        }
        Face {
            number: 2

            Rectangle {
                anchors { left: parent.left; leftMargin: 13; verticalCenter: parent.verticalCenter }
                width: 32
                height: 32
                radius: 7
                gradient: Gradient {
                    GradientStop { position: 0; color: "#ffc46b" }
                    GradientStop { position: 1; color: "#c2368b" }
                }
            }
            Text {
                anchors.centerIn: parent
                text: "First Light"
                font.pixelSize: 13
                color: "white"
            }
            Waveform {
                anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
                width: 24
                height: 20
                playing: picture.look === 2
                still: picture.still
                colors: ["#ff6a4d", "#ff9f6b"]
            }
        }
    }
}
