import QtQuick
import Quillmere

// Where the track is, and the way to be elsewhere: a press or a drag says where to, letting go goes
// there. As on every player, time runs from left to right whatever the language.
Item {
    id: scrubber

    required property MediaModel media

    readonly property bool dragging: area.pressed
    readonly property real shown: dragging ? area.fraction : media.progress
    readonly property bool lively: hover.hovered || dragging || activeFocus

    readonly property real keyStep: 5 // seconds

    // What assistive tools read of a slider.
    readonly property real value: media.progress * media.duration
    readonly property real minimumValue: 0
    readonly property real maximumValue: media.duration
    readonly property real stepSize: keyStep

    height: 34
    activeFocusOnTab: true

    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    Accessible.role: Accessible.Slider
    Accessible.name: qsTr("Position")
    Accessible.description: media.elapsed
    Accessible.focusable: true
    Accessible.onIncreaseAction: media.step(keyStep)
    Accessible.onDecreaseAction: media.step(-keyStep)
    Keys.onLeftPressed: media.step(-keyStep)
    Keys.onRightPressed: media.step(keyStep)

    LevelBar {
        id: bar

        y: 9 - height / 2
        width: parent.width
        level: scrubber.shown
        colors: [Ink.accent]

        Follower on height {
            to: scrubber.lively ? 7 : 5
            curve: Follower.Ease
            riseDuration: 120
            fallDuration: 120
        }
    }
    Disc {
        width: 13
        x: scrubber.shown * (parent.width - width)
        y: 9 - height / 2
        visible: scrubber.lively
        color: "white"
        border.width: scrubber.activeFocus ? 2 : 0
        border.color: scrubber.media.accent
    }

    FigureText {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        text: scrubber.dragging ? scrubber.media.elapsedAt(area.fraction) : scrubber.media.elapsed
        font: Type.text
        color: scrubber.dragging ? Ink.content : Ink.secondary
    }
    FigureText {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        text: scrubber.dragging ? scrubber.media.remainingAt(area.fraction)
                                : scrubber.media.remaining
        font: Type.text
        color: scrubber.dragging ? Ink.content : Ink.secondary
    }

    HoverHandler {
        id: hover
    }
    MouseArea {
        id: area

        readonly property real fraction: Math.max(0, Math.min(1, mouseX / width))

        width: parent.width
        height: 18
        preventStealing: true
        onReleased: scrubber.media.seek(fraction)
    }
}
