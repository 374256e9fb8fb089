import QtQuick
import Quillmere

// The collapsed pill's two ends: what is live at the left, at the right its number or its motion.
Item {
    id: wings

    required property IslandModel island
    required property MediaModel media
    required property AssistantModel assistant
    required property TimerModel timer
    required property bool live

    readonly property FaceModel face: island.wings
    readonly property bool showsMedia: island.wingsShowMedia
    readonly property bool showsAssistant: island.wingsShowAssistant
    readonly property bool showsTimer: island.wingsShowTimer
    // A camera housing takes the middle; then a word has the room of one wing.
    readonly property bool parted: island.contentTop > 0

    anchors.fill: parent
    opacity: 0
    visible: opacity > 0

    Accessible.role: Accessible.StaticText
    Accessible.name: {
        const parts = [];
        if (showsMedia)
            parts.push(media.accessibleText);
        if (showsAssistant)
            parts.push(assistant.summary);
        if (showsTimer)
            parts.push(timer.wingText);
        return parts.length > 0 ? parts.join("; ") : face.accessibleText;
    }
    Accessible.ignored: !island.showsWings

    Follower on opacity {
        to: wings.island.showsWings ? 1 : 0
        curve: Follower.Linear
        enabled: wings.live
        riseDelay: 120
        riseDuration: 140
        fallDuration: 80
    }

    // Built while it is seen: a pill at rest needs neither its items nor, before the first HUD, any font.
    component Part: Loader {
        property bool shown

        anchors.fill: parent
        opacity: 0
        active: wings.visible && (shown || opacity > 0)
        visible: opacity > 0

        Follower on opacity {
            to: shown ? 1 : 0
            curve: Follower.Linear
            enabled: wings.live && wings.visible
            riseDelay: 80
            riseDuration: 140
            fallDuration: 80
        }
    }

    component Word: Text {
        anchors.verticalCenter: parent.verticalCenter
        textFormat: Text.PlainText
        elide: Text.ElideRight
        maximumLineCount: 1
        font: Type.text
        color: Ink.content
    }

    Part {
        shown: wings.showsMedia

        sourceComponent: Item {
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
        }
    }

    Part {
        shown: wings.showsMedia && !wings.showsAssistant && !wings.showsTimer

        sourceComponent: Item {
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
    }

    Part {
        shown: wings.showsMedia && wings.showsAssistant && !wings.showsTimer

        sourceComponent: Item {
            PulsingDot {
                width: 24
                height: 24
                anchors.right: parent.right
                anchors.rightMargin: 6
                anchors.verticalCenter: parent.verticalCenter
                color: wings.assistant.badgeColor
                active: wings.assistant.active
                still: wings.island.reducedMotion
            }
        }
    }

    Part {
        shown: wings.showsAssistant && !wings.showsMedia && !wings.showsTimer

        sourceComponent: Item {
            PulsingDot {
                id: dot

                width: 24
                height: 24
                anchors.left: parent.left
                anchors.leftMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                color: wings.assistant.badgeColor
                active: wings.assistant.active
                still: wings.island.reducedMotion
            }
            Word {
                id: label

                anchors.left: dot.right
                anchors.leftMargin: -1
                width: Math.min(implicitWidth, 130)
                visible: !wings.parted
                text: wings.assistant.badgeLabel
            }
            Word {
                anchors.left: label.right
                anchors.leftMargin: 16
                anchors.right: parent.right
                anchors.rightMargin: 12
                visible: !wings.parted
                horizontalAlignment: Text.AlignRight
                text: wings.assistant.project
                color: Ink.secondary
            }
            Word {
                anchors.right: parent.right
                anchors.rightMargin: 12
                width: Math.min(implicitWidth, 72)
                visible: wings.parted
                text: wings.assistant.badgeLabel
            }
        }
    }

    Part {
        shown: wings.showsTimer

        sourceComponent: Item {
            Glyph {
                width: 18
                height: 18
                anchors.left: parent.left
                anchors.leftMargin: 13
                anchors.verticalCenter: parent.verticalCenter
                visible: !wings.showsMedia && !wings.showsAssistant
                symbol: wings.timer.wingSymbol
                color: "#ffb042"
            }
            PulsingDot {
                width: 24
                height: 24
                anchors.left: parent.left
                anchors.leftMargin: 6
                anchors.verticalCenter: parent.verticalCenter
                visible: wings.showsAssistant && !wings.showsMedia
                color: wings.assistant.badgeColor
                active: wings.assistant.active
                still: wings.island.reducedMotion
            }
            FigureText {
                anchors.right: parent.right
                anchors.rightMargin: 11
                anchors.verticalCenter: parent.verticalCenter
                text: wings.timer.wingText
                font: Type.text
                color: "#ffb042"
            }
        }
    }

    Part {
        shown: !wings.showsMedia && !wings.showsAssistant && !wings.showsTimer

        sourceComponent: Item {
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
}
