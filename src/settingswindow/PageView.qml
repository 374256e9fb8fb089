import QtQuick
import Quillmere.Settings

// The open page: what it is called, its groups, and the way back to the defaults.
PageScroller {
    id: page

    required property SettingsModel model
    property string highlightedKey

    Text {
        text: page.model.title
        width: parent.width
        bottomPadding: 12
        textFormat: Text.PlainText
        font.family: Qt.application.font.family
        font.pixelSize: 19
        font.weight: Font.DemiBold
        font.letterSpacing: -0.3
        color: Theme.text
        horizontalAlignment: Text.AlignLeft
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Loader {
        width: parent.width
        height: active ? 74 + 16 : 0
        active: page.model.preview.kind !== ""
        sourceComponent: Item {
            PreviewStrip {
                width: parent.width
                preview: page.model.preview
            }
        }
    }
    Text {
        width: parent.width
        visible: text !== ""
        text: page.model.absence
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Theme.font(13, Font.Normal)
        color: Theme.muted
        horizontalAlignment: Text.AlignLeft
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Repeater {
        model: page.model.groups

        delegate: GroupCard {
            required property var modelData

            width: parent.width
            bottomPadding: 12
            group: modelData
            highlightedKey: page.highlightedKey
        }
    }
    Item {
        width: parent.width
        height: 34
        visible: page.model.canReset

        PushButton {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            text: qsTr("Reset this page")
            onClicked: page.model.resetPage()
        }
    }
}
