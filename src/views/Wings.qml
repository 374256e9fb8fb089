import QtQuick
import Quillmere

// The collapsed pill's two ends: what is live at the left, its number at the right.
Item {
    id: wings

    required property IslandModel island
    required property bool live

    readonly property FaceModel face: island.wings

    anchors.fill: parent
    visible: opacity > 0

    Accessible.role: Accessible.StaticText
    Accessible.name: face.accessibleText
    Accessible.ignored: !island.showsWings

    Follower on opacity {
        to: wings.island.showsWings ? 1 : 0
        curve: Follower.Linear
        enabled: wings.live
        riseDelay: 120
        riseDuration: 140
        fallDuration: 80
    }

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
