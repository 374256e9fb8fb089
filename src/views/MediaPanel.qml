import QtQuick
import Quillmere

// The playing track: artwork, what it is, where it is, and the transport.
Item {
    id: panel

    required property MediaModel media
    required property DashboardModel model
    required property bool live
    required property bool reducedMotion

    Accessible.role: Accessible.Grouping
    Accessible.name: media.accessibleText

    Artwork {
        id: art

        width: parent.height
        height: width
        anchors.left: parent.left
        media: panel.media
        radius: 14
        crossFades: panel.reducedMotion || !panel.media.flipsArtwork

        activeFocusOnTab: true
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Show where it plays")
        Accessible.onPressAction: panel.media.openSource()
        Keys.onReturnPressed: panel.media.openSource()
        Keys.onSpacePressed: panel.media.openSource()

        Follower on turn {
            to: art.turns
            curve: Follower.Linear
            enabled: panel.live
            riseDuration: panel.reducedMotion ? 150 : 240
        }
        Rectangle {
            anchors.fill: parent
            radius: art.radius
            color: "transparent"
            visible: art.activeFocus
            border.width: 2
            border.color: Ink.content
        }
        MouseArea {
            anchors.fill: parent
            onPressed: panel.media.openSource()
        }
    }

    Item {
        anchors.left: art.right
        anchors.leftMargin: 20
        anchors.right: parent.right
        height: parent.height

        Column {
            anchors.left: parent.left
            anchors.right: wave.left
            anchors.rightMargin: 16

            Marquee {
                width: parent.width
                text: panel.media.title
                font: Type.headline
                fromRight: panel.media.titleFromRight
                moves: !panel.reducedMotion
            }
            Text {
                width: parent.width
                visible: text !== ""
                text: panel.media.artist
                textFormat: Text.PlainText
                elide: Text.ElideRight
                maximumLineCount: 1
                horizontalAlignment: Text.AlignLeft
                font: Type.text
                color: Ink.secondary
            }
        }
        Waveform {
            id: wave

            anchors.right: parent.right
            height: 22
            bars: 9
            barWidth: 3
            gap: 2.5
            playing: panel.media.isPlaying
            still: panel.reducedMotion
            colors: panel.media.waveform
        }

        Scrubber {
            width: parent.width
            y: (parent.height - height) / 2 + 2
            visible: panel.media.hasDuration
            media: panel.media
        }

        Row {
            id: transport

            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: panel.media.hasDuration ? -7 : 8
            spacing: 20

            LayoutMirroring.enabled: false
            LayoutMirroring.childrenInherit: true

            MediaButton {
                anchors.verticalCenter: parent.verticalCenter
                opacity: symbol === "" ? 0 : 1
                enabled: symbol !== ""
                symbol: panel.media.extraSymbol
                text: panel.media.extraText
                glyphSize: 16
                color: on ? Ink.accent : Ink.secondary
                on: panel.media.extraIsOn
                onPressed: panel.media.pressExtra()
            }
            MediaButton {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "backward.fill"
                text: qsTr("Previous track")
                onPressed: panel.media.previous()
            }
            MediaButton {
                anchors.verticalCenter: parent.verticalCenter
                symbol: panel.media.isPlaying ? "pause.fill" : "play.fill"
                text: panel.media.isPlaying ? qsTr("Pause") : qsTr("Play")
                glyphSize: 30
                onPressed: panel.media.togglePlayPause()
            }
            MediaButton {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "forward.fill"
                text: qsTr("Next track")
                onPressed: panel.media.next()
            }
            MediaButton {
                anchors.verticalCenter: parent.verticalCenter
                opacity: panel.model.outputName === "" ? 0 : 1
                enabled: opacity > 0
                symbol: panel.model.outputSymbol
                text: qsTr("Sound plays on %1; choose another output").arg(panel.model.outputName)
                glyphSize: 16
                color: Ink.secondary
                onPressed: panel.model.openPicker()
            }
        }
    }
}
