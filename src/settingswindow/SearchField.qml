import QtQuick
import QtQuick.Templates as T
import Quillmere
import Quillmere.Settings

T.TextField {
    id: field

    readonly property bool visualFocus: activeFocus
    readonly property bool mirrored: LayoutMirroring.enabled

    implicitHeight: 28
    leftPadding: mirrored ? 9 : 29
    rightPadding: mirrored ? 29 : 9
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    font: Theme.font(13, Font.Normal)
    color: Theme.text
    placeholderText: qsTr("Search settings")
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    selectByMouse: true
    Accessible.name: placeholderText
    Accessible.searchEdit: true

    background: Rectangle {
        radius: 7
        color: Theme.highContrast ? Theme.background : Theme.line
        border.width: Theme.edgeWidth
        border.color: Theme.edge

        Glyph {
            anchors.left: parent.left
            anchors.leftMargin: 9
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            symbol: "magnifyingglass"
            color: Theme.muted
        }
        Text {
            anchors.fill: parent
            anchors.leftMargin: 29
            anchors.rightMargin: 9
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignLeft
            text: field.placeholderText
            font: field.font
            color: Theme.muted
            visible: field.text === "" && field.preeditText === ""
            Accessible.ignored: true
        }
    }

    FocusRing {
        radius: 9
    }
}
