import QtQuick
import Quillmere

// Around what the next key goes to.
Rectangle {
    anchors.fill: parent
    anchors.margins: -3
    radius: height / 2
    color: "transparent"
    visible: parent.activeFocus
    border.width: 1.5
    border.color: Ink.content
}
