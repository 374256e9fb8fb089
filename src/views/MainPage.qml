import QtQuick
import Quillmere

// What is live now: the playing track, or else the time, and below it the coding assistant or the
// latest activity. Where there are both, the one that is busy comes first and leads to the other.
Item {
    id: page

    required property DashboardModel model
    required property bool live
    required property bool reducedMotion

    readonly property MediaModel media: model.media
    readonly property AssistantModel assistant: model.assistant
    readonly property bool hasActivity: model.activityCount > 0
    readonly property bool showsAssistant: assistant.hasSession && (!hasActivity || assistant.active !== turned)
    readonly property bool busy: hasActivity || assistant.hasSession
    readonly property bool idle: !busy && !media.hasMedia && media.offered

    // The user asked for the card that does not come first.
    property bool turned: false

    Connections {
        target: page.assistant
        function onActiveChanged() {
            page.turned = false;
        }
    }

    component Panel: Loader {
        property bool shown

        opacity: 0
        active: shown || opacity > 0
        visible: opacity > 0
        enabled: shown

        Follower on opacity {
            to: shown ? 1 : 0
            curve: Follower.Linear
            enabled: page.live
            riseDuration: 120
            fallDuration: 80
        }
    }

    Panel {
        anchors.fill: parent
        anchors.topMargin: page.busy || page.idle ? 18 : 44
        shown: !page.media.hasMedia

        sourceComponent: ClockPanel {
            model: page.model
        }
    }
    Panel {
        anchors.left: parent.left
        anchors.leftMargin: 24
        anchors.right: parent.right
        anchors.rightMargin: 24
        y: page.busy ? 20 : 28
        height: page.busy ? 112 : 132
        shown: page.media.hasMedia

        sourceComponent: MediaPanel {
            media: page.media
            model: page.model
            live: page.live
            reducedMotion: page.reducedMotion
        }
    }

    Item {
        id: cards

        anchors.left: parent.left
        anchors.leftMargin: 24
        anchors.right: parent.right
        anchors.rightMargin: 24
        height: page.media.hasMedia ? 46 : 56
        // Under a track it reaches into the foot, above the dots.
        y: page.media.hasMedia ? 146 : parent.height - height - 6

        Panel {
            anchors.fill: parent
            shown: page.hasActivity && !page.showsAssistant

            sourceComponent: ActivityCard {
                model: page.model
                reducedMotion: page.reducedMotion
                onAssistantWanted: page.turned = !page.turned
            }
        }
        Panel {
            anchors.fill: parent
            shown: page.showsAssistant

            sourceComponent: AssistantCard {
                model: page.model
                reducedMotion: page.reducedMotion
                onActivitiesWanted: page.turned = !page.turned
            }
        }
    }
    Card {
        anchors.left: parent.left
        anchors.leftMargin: 24
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 6
        height: 56
        visible: page.idle

        Accessible.role: Accessible.StaticText
        Accessible.name: nothing.text

        Glyph {
            id: note

            width: 18
            height: 18
            anchors.left: parent.left
            anchors.leftMargin: 21
            anchors.verticalCenter: parent.verticalCenter
            symbol: "music.note"
            color: Ink.secondary
        }
        Text {
            id: nothing

            anchors.left: note.right
            anchors.leftMargin: 17
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Nothing is playing")
            textFormat: Text.PlainText
            font: Type.text
            color: Ink.secondary
        }
    }
}
