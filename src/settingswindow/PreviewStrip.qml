import QtQuick
import Quillmere
import Quillmere.Settings

// A piece of a desktop with the island on it.
Rectangle {
    id: strip

    required property SettingsPreview preview

    height: 74
    radius: 10
    clip: true
    Accessible.ignored: true

    gradient: Gradient {
        orientation: Gradient.Horizontal

        GradientStop {
            position: 0
            color: "#7aa7d8"
        }
        GradientStop {
            position: 1
            color: "#3c5a93"
        }
    }

    component Cover: Rectangle {
        radius: 5
        gradient: Gradient {
            GradientStop {
                position: 0
                color: "#ffc98a"
            }
            GradientStop {
                position: 0.45
                color: "#ff8a5c"
            }
            GradientStop {
                position: 1
                color: "#8a2f6e"
            }
        }
    }
    component Words: Text {
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        font: Theme.font(12, Font.Normal)
        color: Ink.content
        Accessible.ignored: true
    }

    Silhouette {
        visible: strip.preview.kind === "island"
        anchors.horizontalCenter: parent.horizontalCenter
        width: 330
        height: 58
        cornerRadius: 22
        surfaceAlpha: strip.preview.surfaceAlpha

        Row {
            anchors.centerIn: parent
            spacing: 10

            Glyph {
                width: 20
                height: 20
                anchors.verticalCenter: parent.verticalCenter
                symbol: "cloud.sun.fill"
                color: Ink.content
            }
            Words {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("The open island")
            }
        }
    }
    Silhouette {
        visible: strip.preview.kind === "level" || strip.preview.kind === "battery"
        anchors.horizontalCenter: parent.horizontalCenter
        width: 300
        height: 44
        cornerRadius: 22

        Loader {
            anchors.fill: parent
            active: strip.preview.kind === "level"
            sourceComponent: LevelHUD {
                face: strip.preview.face
                overshoot: false
                onScreen: true
            }
        }
        Loader {
            anchors.fill: parent
            active: strip.preview.kind === "battery"
            sourceComponent: BatteryHUD {
                face: strip.preview.face
            }
        }
    }
    Row {
        visible: strip.preview.kind === "media"
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 40
        scale: Math.min(1, (strip.width - 24) / width)
        transformOrigin: Item.Top

        Silhouette {
            width: strip.preview.showsMedia ? 214 : 126
            height: 32
            cornerRadius: 10

            Cover {
                anchors.left: parent.left
                anchors.leftMargin: 10
                y: 6
                width: 20
                height: 20
                visible: strip.preview.showsMedia
            }
            Waveform {
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                width: 21
                height: 14
                playing: true
                still: true
                visible: strip.preview.showsWaveform
                colors: strip.preview.compactWaveform
            }
        }
        Silhouette {
            width: 230
            height: 62
            cornerRadius: 22
            visible: strip.preview.showsMedia

            Cover {
                anchors.left: parent.left
                anchors.leftMargin: 14
                y: 11
                width: 40
                height: 40
                radius: 8
            }
            Words {
                anchors.left: parent.left
                anchors.leftMargin: 64
                y: 14
                width: 90
                text: "First Light"
                font: Theme.font(13, Font.DemiBold)
            }
            Words {
                anchors.left: parent.left
                anchors.leftMargin: 64
                y: 32
                width: 90
                text: "Aurora"
                color: Ink.secondary
            }
            Glyph {
                anchors.left: parent.left
                anchors.leftMargin: 160
                anchors.verticalCenter: parent.verticalCenter
                width: 14
                height: 14
                symbol: strip.preview.extraSymbol
                color: Ink.content
            }
            Waveform {
                anchors.right: parent.right
                anchors.rightMargin: 16
                anchors.verticalCenter: parent.verticalCenter
                width: 33
                height: 22
                barWidth: 3
                gap: 3
                bars: 6
                playing: true
                still: true
                colors: strip.preview.expandedWaveform
            }
        }
    }
}
