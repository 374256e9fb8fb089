import QtQuick
import Quillmere

Rectangle {
    radius: 14
    color: Ink.card
}
