import QtQuick
import Quillmere

Item {
    id: scene

    required property IslandModel island

    readonly property bool live: Window.visibility !== Window.Hidden
    readonly property int motion: island.reducedMotion ? Follower.Linear : Follower.Spring

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    // The canvas comes up empty and the island fades in on it, every time it is shown.
    Follower on opacity {
        to: scene.live ? scene.island.alpha : 0
        curve: Follower.Linear
        riseDuration: 100
        fallDuration: 0
    }

    Silhouette {
        id: silhouette

        x: (scene.width - width) / 2

        Accessible.role: Accessible.Pane
        Accessible.name: scene.island.accessibleText

        Follower on width {
            to: scene.island.targetWidth
            curve: scene.motion
            enabled: scene.live
        }
        Follower on height {
            to: scene.island.targetHeight
            curve: scene.motion
            enabled: scene.live
        }
        Follower on cornerRadius {
            to: scene.island.cornerRadius
            curve: scene.motion
            enabled: scene.live
        }

        MouseArea {
            anchors.fill: parent
            onPressed: scene.island.press()
            onWheel: wheel => scene.island.wheel(wheel.pixelDelta, wheel.angleDelta)
        }

        Item {
            anchors.fill: parent
            clip: true

            HUDSlot {
                objectName: "firstHUD"
                face: scene.island.firstFace
                shown: scene.island.shownFace === 0
                island: scene.island
                live: scene.live
            }
            HUDSlot {
                objectName: "secondHUD"
                face: scene.island.secondFace
                shown: scene.island.shownFace === 1
                island: scene.island
                live: scene.live
            }
        }
    }
}
