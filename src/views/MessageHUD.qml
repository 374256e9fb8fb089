import QtQuick
import Quillmere

// Image or glyph, a title and below it up to two lines; lower ones, for devices, have one line there
// and may have a number at the end.
Item {
    id: hud

    required property FaceModel face

    readonly property bool low: height < 70

    Item {
        id: box

        width: hud.low && !hud.face.hasPicture ? hud.face.symbolSize : Math.min(44, hud.height - 24)
        height: width
        visible: hud.face.hasPicture || hud.face.symbol !== ""
        anchors.left: parent.left
        anchors.leftMargin: hud.low ? 18 : 16
        anchors.verticalCenter: parent.verticalCenter

        Rectangle {
            anchors.fill: parent
            visible: !hud.low && !hud.face.hasPicture
            radius: 12
            color: hud.face.hasBoxColor ? hud.face.boxColor : Ink.raised
        }
        Glyph {
            anchors.centerIn: parent
            width: hud.face.symbolSize
            height: width
            visible: !hud.face.hasPicture
            symbol: hud.face.symbol
            color: hud.low ? Ink.content : hud.face.accent
        }
        Picture {
            anchors.fill: parent
            image: hud.face.picture
            radius: 12
        }
    }

    Column {
        id: texts

        anchors.left: box.visible ? box.right : parent.left
        anchors.leftMargin: box.visible ? 12 : 18
        anchors.right: figures.text === "" ? parent.right : figures.left
        anchors.rightMargin: figures.text === "" ? 18 : 12
        anchors.verticalCenter: parent.verticalCenter

        Text {
            width: parent.width - (source.visible ? source.width + 10 : 0)
            text: hud.face.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font: Type.title
            color: Ink.content
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: hud.face.subtitle
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.Wrap
            maximumLineCount: hud.low ? 1 : 2
            lineHeight: 16
            lineHeightMode: Text.FixedHeight
            font: Type.text
            color: hud.low ? Ink.secondary : Ink.body
        }
    }

    Text {
        id: source

        anchors.right: parent.right
        anchors.rightMargin: 18
        y: texts.y + 1
        visible: text !== ""
        text: hud.face.label
        textFormat: Text.PlainText
        font: Type.text
        color: Ink.secondary
    }
    FigureText {
        id: figures

        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        text: hud.face.figures
        font: Type.title
        color: hud.face.accent
    }
}
