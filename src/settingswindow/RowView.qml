import QtQuick
import Quillmere.Settings

// Title and explanation at one side, the control at the other, or below where it is too wide.
Item {
    id: view

    required property SettingRow row
    property bool highlighted: false
    readonly property Item control: controlLoader.item
    readonly property bool stacked: controlLoader.width > (width - 28) * 0.55

    implicitHeight: stacked ? texts.height + controlLoader.height + 27 : Math.max(46, texts.height + 18)

    Rectangle {
        anchors.fill: parent
        anchors.margins: 3
        radius: 8
        color: Theme.accent
        opacity: view.highlighted && !Theme.highContrast ? 0.16 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.duration * 2
            }
        }
    }
    Rectangle {
        anchors.fill: parent
        anchors.margins: 3
        radius: 8
        color: "transparent"
        border.width: 2
        border.color: Theme.accent
        visible: view.highlighted && Theme.highContrast
    }
    Column {
        id: texts

        anchors.left: parent.left
        anchors.leftMargin: 14
        y: view.stacked ? 9 : (view.height - height) / 2
        width: view.width - 28 - (view.stacked ? 0 : end.width + 14)
        spacing: 1

        Text {
            width: parent.width
            text: view.row.title
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Theme.font(13, Font.Medium)
            color: Theme.text
            visible: text !== ""
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: view.row.control !== "note" || !visible
        }
        Text {
            width: parent.width
            text: view.row.explanation
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Theme.font(12, Font.Normal)
            color: Theme.muted
            visible: text !== ""
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: view.row.control !== "note" || !visible
        }
        Text {
            width: parent.width
            text: view.row.warning
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Theme.font(12, Theme.highContrast ? Font.Bold : Font.Normal)
            color: Theme.warning
            visible: text !== ""
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: !visible
        }
    }
    Item {
        id: end

        anchors.right: parent.right
        anchors.rightMargin: 14
        y: view.stacked ? view.height - height - 10 : (view.height - height) / 2
        width: Math.max(controlLoader.width, button.width)
        height: Math.max(controlLoader.height, button.height)

        ControlLoader {
            id: controlLoader

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            row: view.row
            // Many choices with long names in a small window.
            scale: Math.min(1, (view.width - 28) / width)
            transformOrigin: LayoutMirroring.enabled ? Item.Left : Item.Right
        }
        Loader {
            id: button

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            active: view.row.buttonTitle !== ""
            sourceComponent: PushButton {
                text: view.row.buttonTitle
                Accessible.description: view.row.title
                onClicked: view.row.activate()
            }
        }
    }
}
