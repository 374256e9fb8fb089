pragma Singleton
import QtQuick

// White on black, in a few strengths.
QtObject {
    readonly property color content: Qt.rgba(1, 1, 1, 0.92)
    // The one colour for what is current and what is pressed most; the user may choose it.
    property color accent: content
    readonly property color accentPressed: Qt.rgba(accent.r, accent.g, accent.b, 0.72)

    readonly property color body: Qt.rgba(1, 1, 1, 0.72)
    readonly property color secondary: Qt.rgba(1, 1, 1, 0.55)
    readonly property color faint: Qt.rgba(1, 1, 1, 0.28)
    readonly property color pressed: Qt.rgba(1, 1, 1, 0.2)
    readonly property color raised: Qt.rgba(1, 1, 1, 0.12)
    readonly property color card: Qt.rgba(1, 1, 1, 0.08)

    // Whether white or black is read better on a colour that the user chose. On those between, white
    // is what people are used to; who asks for contrast gets the better one of them there, too.
    function over(ground: color, highContrast: bool): color {
        const part = value => value <= 0.04045 ? value / 12.92 : Math.pow((value + 0.055) / 1.055, 2.4);
        const luminance = 0.2126 * part(ground.r) + 0.7152 * part(ground.g) + 0.0722 * part(ground.b);
        return luminance > (highContrast ? 0.18 : 0.3) ? "black" : "white";
    }
}
