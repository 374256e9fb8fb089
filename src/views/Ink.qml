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
}
