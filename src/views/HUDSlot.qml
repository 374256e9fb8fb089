import QtQuick
import Quillmere

// One HUD, at its final size in the middle of the island while that is still on its way.
Item {
    id: slot

    required property FaceModel face
    required property bool shown
    required property bool live
    required property IslandModel island

    readonly property bool overshoot: shown && island.overshoot

    y: island.contentTop
    width: face.size.width
    height: face.size.height
    anchors.horizontalCenter: parent.horizontalCenter
    visible: opacity > 0

    Accessible.role: Accessible.AlertMessage
    Accessible.name: face.accessibleText
    Accessible.ignored: !shown

    Follower on opacity {
        to: slot.shown ? 1 : 0
        curve: Follower.Linear
        enabled: slot.live
        riseDelay: slot.island.contentDelay
        riseDuration: 140
        fallDuration: slot.island.contentDelay > 0 ? 80 : 120
    }

    Loader {
        anchors.fill: parent
        sourceComponent: {
            switch (slot.face.layout) {
            case HUDLayout.Level:
                return level;
            case HUDLayout.Battery:
                return battery;
            case HUDLayout.Message:
                return message;
            default:
                return null;
            }
        }
    }

    Component {
        id: level
        LevelHUD {
            face: slot.face
            overshoot: slot.overshoot
            onScreen: slot.visible && slot.live
        }
    }
    Component {
        id: battery
        BatteryHUD {
            face: slot.face
        }
    }
    Component {
        id: message
        MessageHUD {
            face: slot.face
        }
    }
}
