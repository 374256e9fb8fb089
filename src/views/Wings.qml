import QtQuick
import Quillmere

// The collapsed pill's two ends: what is live at the left, at the right its number or the waveform.
Item {
    id: wings

    required property IslandModel island
    required property MediaModel media
    required property bool live

    readonly property FaceModel face: island.wings

    anchors.fill: parent
    visible: opacity > 0

    Accessible.role: Accessible.StaticText
    Accessible.name: island.wingsShowMedia ? media.accessibleText : face.accessibleText
    Accessible.ignored: !island.showsWings

    Follower on opacity {
        to: wings.island.showsWings ? 1 : 0
        curve: Follower.Linear
        enabled: wings.live
        riseDelay: 120
        riseDuration: 140
        fallDuration: 80
    }

    Item {
        anchors.fill: parent
        visible: wings.island.wingsShowMedia

        Artwork {
            id: art

            width: 20
            height: 20
            anchors.left: parent.left
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            media: wings.media
            radius: 5
            crossFades: wings.island.reducedMotion || !wings.media.flipsArtwork

            Follower on turn {
                to: art.turns
                curve: Follower.Linear
                enabled: wings.live && wings.visible
                riseDuration: wings.island.reducedMotion ? 150 : 240
            }
        }
        Waveform {
            height: 14
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            visible: wings.media.showsCompactWaveform
            playing: wings.media.isPlaying
            still: wings.island.reducedMotion
            colors: wings.media.compactWaveform
        }
    }

    Item {
        anchors.fill: parent
        visible: !wings.island.wingsShowMedia

        Glyph {
            width: 18
            height: 18
            anchors.left: parent.left
            anchors.leftMargin: 13
            anchors.verticalCenter: parent.verticalCenter
            visible: !wings.face.hasPicture
            symbol: wings.face.symbol
            color: Ink.content
        }
        Picture {
            width: 20
            height: 20
            anchors.left: parent.left
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            image: wings.face.picture
            radius: 5
        }
        FigureText {
            anchors.right: parent.right
            anchors.rightMargin: 13
            anchors.verticalCenter: parent.verticalCenter
            text: wings.face.figures
            font: Type.text
            color: wings.face.accent
        }
    }
}
