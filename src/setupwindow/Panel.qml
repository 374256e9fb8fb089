import QtQuick

Rectangle {
    radius: 9
    color: Look.card
    border.width: 1
    border.color: Look.line
}
