pragma Singleton
import QtQuick

// White on black, in four strengths.
QtObject {
    readonly property color content: Qt.rgba(1, 1, 1, 0.92)
    readonly property color body: Qt.rgba(1, 1, 1, 0.72)
    readonly property color secondary: Qt.rgba(1, 1, 1, 0.55)
    readonly property color raised: Qt.rgba(1, 1, 1, 0.12)
}
