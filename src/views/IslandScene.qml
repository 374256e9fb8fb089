import QtQuick
import Quillmere

Item {
    id: scene

    required property IslandModel island
    required property DashboardModel dashboard

    readonly property bool live: Window.visibility !== Window.Hidden
    readonly property int motion: island.reducedMotion ? Follower.Linear : Follower.Spring

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    // A window that is gone tells nobody that the pointer, or what it drags, is.
    onLiveChanged: {
        if (live)
            return;
        island.hover(false);
        island.dragOver(false);
    }

    Binding {
        target: Ink
        property: "accent"
        value: scene.island.accent
    }

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
        Follower on surfaceAlpha {
            to: scene.island.surfaceAlpha
            curve: Follower.Linear
            enabled: scene.live
        }

        HoverHandler {
            onHoveredChanged: scene.island.hover(hovered)
        }
        PointerArea {
            anchors.fill: parent
            island: scene.island
        }
        DropTarget {
            anchors.fill: parent
            onDragEntered: scene.island.dragOver(true)
            onDragExited: scene.island.dragOver(false)
            onDropped: files => scene.island.drop(files)
        }

        Item {
            anchors.fill: parent
            clip: true

            Wings {
                island: scene.island
                media: scene.dashboard.media
                assistant: scene.dashboard.assistant
                timer: scene.dashboard.timer
                live: scene.live
            }
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
            // Built when it opens and gone when it has closed: most of the day nobody sees it.
            Loader {
                id: dashboard

                y: scene.island.contentTop
                width: 600
                height: 220
                anchors.horizontalCenter: parent.horizontalCenter
                opacity: 0
                active: scene.island.expanded || opacity > 0
                visible: opacity > 0
                focus: true

                Follower on opacity {
                    to: scene.island.expanded ? 1 : 0
                    curve: Follower.Linear
                    enabled: scene.live
                    riseDelay: scene.island.reducedMotion ? 0 : 120
                    riseDuration: 140
                    fallDuration: 80
                }

                // By its address: named as a type, it would be loaded with all its pages along with the island.
                Component.onCompleted: setSource("Dashboard.qml", {
                    model: scene.dashboard,
                    motion: Qt.binding(() => scene.motion),
                    live: Qt.binding(() => scene.live)
                })
            }
        }
    }
}
