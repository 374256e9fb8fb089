import QtQuick
import Quillmere

// One line: glyph, bar, and at the end a number, a word or nothing.
Item {
    id: hud

    required property FaceModel face
    required property bool overshoot
    required property bool onScreen ///< what is not seen jumps

    readonly property bool full: face.level > 0.5
    readonly property bool hasEnd: face.label !== "" || face.figures !== ""

    Item {
        id: glyphBox

        width: 20
        height: 20
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.verticalCenter: parent.verticalCenter

        Glyph {
            id: glyph

            // At the empty end the glyph gives way to the bar.
            property real nudge: 0

            anchors.centerIn: parent
            anchors.horizontalCenterOffset: nudge
            height: width
            symbol: hud.face.symbol
            color: Ink.content

            Follower on width {
                to: hud.face.symbolSize
                curve: Follower.Ease
                enabled: hud.onScreen
                riseDuration: hud.face.levelAnimation
                fallDuration: hud.face.levelAnimation
            }
            Follower on nudge {
                to: hud.overshoot && !hud.full ? -2 : 0
                damping: 0.5
                response: 0.24
                enabled: hud.onScreen
            }
        }
    }

    LevelBar {
        id: bar

        property real endSpace: 0

        height: 6
        anchors.left: glyphBox.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 18 + endSpace
        anchors.verticalCenter: parent.verticalCenter
        colors: hud.face.barColors
        colorsFollowTrack: hud.face.colorsFollowTrack
        glow: hud.face.glow
        mirrored: hud.LayoutMirroring.enabled

        Follower on level {
            to: hud.face.level
            curve: Follower.Ease
            enabled: hud.onScreen
            riseDuration: hud.face.levelAnimation
            fallDuration: hud.face.levelAnimation
        }
        Follower on bump {
            to: hud.overshoot ? (hud.full ? 1 : -1) * 0.04 * bar.width : 0
            damping: 0.5
            response: 0.24
            enabled: hud.onScreen
        }
        Follower on endSpace {
            to: hud.hasEnd ? 12 + end.width : 0
            curve: Follower.Ease
            enabled: hud.onScreen
        }
    }

    Item {
        id: end

        width: Math.max(34, label.implicitWidth, figures.implicitWidth)
        height: parent.height
        anchors.right: parent.right
        anchors.rightMargin: 18

        Text {
            id: label

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: hud.face.label
            textFormat: Text.PlainText
            font: Type.text
            color: Ink.secondary
        }
        FigureText {
            id: figures

            visible: hud.face.label === ""
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: hud.face.figures
            font: Type.text
            color: Ink.secondary
        }
    }
}
