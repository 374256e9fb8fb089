pragma Singleton
import QtQuick

// The window's colours, light and dark. Text on every ground it stands on has a contrast of 4.5.
QtObject {
    property bool dark: false
    property color accent: "#0071e3"
    property bool reducedMotion: false

    readonly property color text: dark ? "#f2f2f4" : "#1c1c1e"
    readonly property color muted: dark ? "#a4a4aa" : "#636368"
    readonly property color background: dark ? "#1e1e20" : "#f6f6f7"
    readonly property color sidebar: dark ? "#2a2a2d" : "#ececee"
    readonly property color card: dark ? "#2c2c2f" : "#ffffff"
    readonly property color line: dark ? Qt.rgba(1, 1, 1, 0.08) : Qt.rgba(0, 0, 0, 0.08)
    readonly property color groove: dark ? Qt.rgba(1, 1, 1, 0.14) : Qt.rgba(0, 0, 0, 0.1)
    readonly property color chosen: dark ? "#5a5a5f" : "#ffffff"
    readonly property color hovered: dark ? Qt.rgba(1, 1, 1, 0.05) : Qt.rgba(0, 0, 0, 0.04)
    readonly property color on: "#34c759"
    readonly property color warning: dark ? "#ff9f0a" : "#9a5200"

    readonly property int duration: reducedMotion ? 0 : 120

    function font(size: real, weight: int): font {
        return Qt.font({
            family: Qt.application.font.family,
            pixelSize: size,
            weight: weight
        });
    }
}
