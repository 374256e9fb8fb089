pragma Singleton
import QtQuick
import Quillmere

// The colours of the window, light and dark.
QtObject {
    property bool dark: false
    property bool highContrast: false
    property bool still: false // nothing moves
    property color accent: "#0a84ff"

    readonly property color window: dark ? highContrast ? "#000000" : "#1e1e20" : highContrast ? "#ffffff" : "#f5f5f6"
    readonly property color card: highContrast ? window : dark ? "#2a2a2c" : "#ffffff"
    readonly property color line: highContrast ? text : dark ? "#3a3a3d" : "#e4e4e6"
    readonly property color text: dark ? highContrast ? "#ffffff" : "#f5f5f7" : highContrast ? "#000000" : "#1d1d1f"
    readonly property color quiet: highContrast ? text : dark ? "#a1a1a6" : "#6a6a6f"
    readonly property color warning: dark ? "#ffb340" : highContrast ? "#7a4300" : "#a85c00"
    readonly property color good: dark ? "#32d74b" : "#1f8f3a"
    readonly property color button: highContrast ? window : dark ? "#3a3a3d" : "#e6e6e8"
    readonly property color focus: highContrast ? text : accent
    readonly property color off: dark ? "#48484b" : highContrast ? "#8a8a8e" : "#d8d8db"
    readonly property color accentText: Ink.over(accent, highContrast)
}
