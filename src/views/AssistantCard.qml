import QtQuick
import Quillmere

// What the coding assistant does: in which project, with which tool, and what it was last asked.
Card {
    id: card

    required property DashboardModel model
    required property bool reducedMotion

    readonly property AssistantModel assistant: model.assistant

    signal activitiesWanted()

    // A text with marks stacked sky-high stays in the card.
    clip: true

    Accessible.role: Accessible.Grouping
    Accessible.name: assistant.accessibleText

    PulsingDot {
        id: dot

        width: 28
        height: 28
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        color: card.assistant.color
        active: card.assistant.active
        still: card.reducedMotion
    }

    Column {
        anchors.left: dot.right
        anchors.leftMargin: 6
        anchors.right: state.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter

        Row {
            id: heading

            width: parent.width
            spacing: 5

            Text {
                id: project

                width: Math.min(implicitWidth, tool.text !== "" ? heading.width * 0.6 : heading.width)
                text: card.assistant.project
                textFormat: Text.PlainText
                elide: Text.ElideRight
                maximumLineCount: 1
                font: Type.title
                color: Ink.content
            }
            Text {
                visible: tool.text !== ""
                text: "·"
                font: Type.title
                color: Ink.content
            }
            Text {
                id: tool

                width: Math.min(implicitWidth, heading.width - x)
                visible: text !== ""
                text: card.assistant.tool
                textFormat: Text.PlainText
                elide: Text.ElideRight
                maximumLineCount: 1
                font: Type.title
                color: Ink.content
            }
        }
        Text {
            width: parent.width
            visible: card.assistant.prompt !== ""
            text: qsTr("“%1”").arg(card.assistant.prompt)
            textFormat: Text.PlainText
            elide: Text.ElideRight
            maximumLineCount: 1
            horizontalAlignment: Text.AlignLeft
            font: Type.text
            color: Ink.secondary
        }
    }

    Column {
        id: state

        anchors.right: more.visible ? more.left : parent.right
        anchors.rightMargin: more.visible ? 8 : 18
        anchors.verticalCenter: parent.verticalCenter

        Text {
            anchors.right: parent.right
            text: card.assistant.label
            textFormat: Text.PlainText
            font: Type.text
            color: card.assistant.active ? card.assistant.color : Ink.secondary
        }
        Text {
            anchors.right: parent.right
            text: card.assistant.since
            textFormat: Text.PlainText
            font: Type.text
            color: Ink.secondary
        }
    }

    Button {
        id: more

        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        visible: card.model.activityCount > 0
        flat: true
        symbol: card.model.activity.symbol
        description: qsTr("Show recent activities")
        onPressed: card.activitiesWanted()
    }
}
