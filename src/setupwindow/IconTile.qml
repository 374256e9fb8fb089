import QtQuick
import Quillmere

Rectangle {
    id: tile

    property string symbol
    property color tint

    implicitWidth: 24
    implicitHeight: 24
    radius: 6
    color: tint

    Glyph {
        anchors.centerIn: parent
        width: 14
        height: 14
        symbol: tile.symbol
        color: "white"
    }
}
