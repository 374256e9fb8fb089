import QtQuick
import Quillmere.Settings

// The open page: what it is called, its groups, and the way back to the defaults.
PageScroller {
    id: page

    required property SettingsModel model
    property string highlightedKey

    // Points out a row and puts the keyboard there.
    function reveal(key: string) {
        highlightedKey = key;
        for (let i = 0; i < groups.count; i++) {
            const row = groups.itemAt(i).find(key);
            if (row && row.control)
                return row.control.take();
        }
        if (key !== "" && account.item)
            account.item.take();
    }

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
        Accessible.ignored: !visible
    }
    Loader {
        id: account

        width: parent.width
        active: page.model.pageId === "google" && page.model.googleAccount !== null
        visible: active
        sourceComponent: AccountCard {
            width: parent.width
            bottomPadding: 12
            account: page.model.googleAccount
        }
    }
    Repeater {
        id: groups

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
