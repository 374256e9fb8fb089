import QtQuick
import Quillmere

// One recent activity; with more than one, arrows and a count to go through them.
Card {
    id: card

    required property DashboardModel model

    required property bool reducedMotion

    readonly property FaceModel face: model.activity

    signal assistantWanted()

    Accessible.role: Accessible.Grouping
    Accessible.name: face.accessibleText

    Item {
        id: box

        width: 32
        height: 32
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter

        Glyph {
            anchors.centerIn: parent
            width: 22
            height: 22
            visible: !card.face.hasPicture
            symbol: card.face.symbol
            color: Ink.content
        }
        Picture {
            anchors.fill: parent
            image: card.face.picture
            radius: 8
        }
    }

    Column {
        anchors.left: box.right
        anchors.leftMargin: 10
        anchors.right: controls.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter

        Text {
            width: parent.width
            text: card.face.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font: Type.title
            color: Ink.content
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: card.face.subtitle
            textFormat: Text.PlainText
            elide: Text.ElideRight
            maximumLineCount: 1
            horizontalAlignment: Text.AlignLeft
            font: Type.text
            color: Ink.secondary
        }
    }

    Row {
        id: controls

        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        FigureText {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: card.face.figures
            font: Type.title
            color: card.face.accent
        }
        Button {
            visible: card.model.activityCount > 1
            flat: true
            symbol: card.LayoutMirroring.enabled ? "chevron.right" : "chevron.left"
            description: qsTr("Previous activity")
            onPressed: card.model.stepActivity(-1)
        }
        FigureText {
            anchors.verticalCenter: parent.verticalCenter
            visible: card.model.activityCount > 1
            text: (card.model.activityIndex + 1) + " / " + card.model.activityCount
            font: Type.text
            color: Ink.secondary
        }
        Button {
            visible: card.model.activityCount > 1
            flat: true
            symbol: card.LayoutMirroring.enabled ? "chevron.left" : "chevron.right"
            description: qsTr("Next activity")
            onPressed: card.model.stepActivity(1)
        }
        Button {
            visible: card.model.assistant.hasSession
            flat: true
            description: card.model.assistant.summary
            onPressed: card.assistantWanted()

            PulsingDot {
                anchors.fill: parent
                color: card.model.assistant.color
                active: card.model.assistant.active
                still: card.reducedMotion
            }
        }
        Button {
            flat: true
            symbol: "xmark"
            description: qsTr("Dismiss")
            onPressed: card.model.dismissActivity()
        }
    }
}
