pragma Singleton
import QtQuick
import Quillmere

// The window's colours, light and dark. Text on every ground it stands on has a contrast of 4.5; in
// high contrast it is black or white, nothing is told by a shade alone, and all that can be used
// has an edge.
QtObject {
    property bool dark: false
    property bool highContrast: false
    property color accent: "#0071e3"
    property bool reducedMotion: false

    readonly property color text: dark ? highContrast ? "#ffffff" : "#f2f2f4" : highContrast ? "#000000" : "#1c1c1e"
    readonly property color muted: highContrast ? text : dark ? "#a4a4aa" : "#636368"
    readonly property color background: dark ? highContrast ? "#000000" : "#1e1e20" : highContrast ? "#ffffff" : "#f6f6f7"
    readonly property color sidebar: highContrast ? background : dark ? "#2a2a2d" : "#ececee"
    readonly property color card: highContrast ? background : dark ? "#2c2c2f" : "#ffffff"
    readonly property color line: highContrast ? dark ? "#a8a8ad" : "#58585c" : dark ? Qt.rgba(1, 1, 1, 0.08) : Qt.rgba(0, 0, 0, 0.08)
    readonly property color groove: highContrast ? background : dark ? Qt.rgba(1, 1, 1, 0.14) : Qt.rgba(0, 0, 0, 0.1)
    readonly property color chosen: highContrast ? text : dark ? "#5a5a5f" : "#ffffff"
    readonly property color chosenText: highContrast ? background : text
    readonly property color hovered: highContrast ? pressed : dark ? Qt.rgba(1, 1, 1, 0.05) : Qt.rgba(0, 0, 0, 0.04)
    readonly property color pressed: highContrast ? dark ? "#3c3c40" : "#d8d8dc" : groove
    readonly property color on: highContrast ? text : "#34c759"
    readonly property color warning: dark ? highContrast ? "#ffc04d" : "#ff9f0a" : highContrast ? "#6b3800" : "#9a5200"

    // Of what can be used.
    readonly property color edge: highContrast ? text : "transparent"
    readonly property real edgeWidth: highContrast ? 1 : 0
    // Of the cards.
    readonly property real cardEdge: highContrast ? 1 : dark ? 0 : 0.5

    readonly property color focus: highContrast ? text : accent
    readonly property color link: {
        if (highContrast)
            return text;
        if (dark)
            return Qt.lighter(accent, 1.5);
        return Qt.colorEqual(accentText, "black") ? Qt.darker(accent, 2) : accent;
    }
    readonly property color accentText: Ink.over(accent, highContrast)

    readonly property int duration: reducedMotion ? 0 : 120

    function font(size: real, weight: int): font {
        return Qt.font({
            family: Qt.application.font.family,
            pixelSize: size,
            weight: weight
        });
    }
}
