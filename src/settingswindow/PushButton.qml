import QtQuick
import QtQuick.Templates as T
import Quillmere.Settings

T.Button {
    id: control

    implicitWidth: label.implicitWidth + 22
    implicitHeight: 28
    Accessible.name: text
    Accessible.onPressAction: control.clicked()
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    background: Rectangle {
        radius: 7
        color: Theme.groove
        border.width: Theme.edgeWidth
        border.color: Theme.edge

        Rectangle {
            anchors.fill: parent
            anchors.margins: Theme.edgeWidth
            radius: 7
            visible: control.down || control.hovered
            color: control.down ? Theme.pressed : Theme.hovered
        }
    }
    contentItem: Item {
        Text {
            id: label

            anchors.centerIn: parent
            text: control.text
            textFormat: Text.PlainText
            font: Theme.font(12, Font.Medium)
            color: Theme.text
        }
    }

    FocusRing {
        radius: 9
    }
}
