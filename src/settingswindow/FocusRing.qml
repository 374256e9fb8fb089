import QtQuick
import Quillmere.Settings

// Around whatever the keyboard is on.
Rectangle {
    property Item control: parent

    anchors.fill: parent
    anchors.margins: -3
    visible: control.visualFocus
    color: "transparent"
    border.width: 2
    border.color: Theme.accent
}
