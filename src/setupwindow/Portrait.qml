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
                x: 16
                anchors.verticalCenter: parent.verticalCenter
                width: 18
                height: 18
                symbol: "speaker.wave.2.fill"
            }
            Rectangle {
                anchors { left: parent.left; leftMargin: 46; right: parent.right; rightMargin: 18; verticalCenter: parent.verticalCenter }
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
                x: 12
                anchors.verticalCenter: parent.verticalCenter
                width: 28
                height: 28
                radius: 6
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
