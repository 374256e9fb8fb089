import QtQuick
import Quillmere

Rectangle {
    height: width
    radius: width / 2
}
