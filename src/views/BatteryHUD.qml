import QtQuick
import Quillmere

// One line: what happened, and at the end the charge and the battery's glyph.
Item {
    id: hud

    required property FaceModel face

    Text {
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.right: figures.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: hud.face.title
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        font: Type.title
        color: Ink.content
    }
    FigureText {
        id: figures

        anchors.right: glyph.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: hud.face.figures
        font: Type.title
        color: hud.face.accent
    }
    Glyph {
        id: glyph

        width: hud.face.symbolSize
        height: width
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        symbol: hud.face.symbol
        color: hud.face.accent
    }
}
