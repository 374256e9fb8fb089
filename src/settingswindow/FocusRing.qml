import QtQuick
import Quillmere.Settings

// Around whatever the keyboard is on.
Rectangle {
    property Item control: parent

    anchors.fill: parent
    anchors.margins: Theme.highContrast ? -5 : -3
    visible: control.visualFocus
    color: "transparent"
    border.width: Theme.highContrast ? 3 : 2
    border.color: Theme.focus
}
