import QtQuick
import QtQuick.Templates as T
import Quillmere.Settings

T.Switch {
    id: control

    required property SettingRow row

    function take() {
        forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: 36
    implicitHeight: 21
    checked: row.value === true
    Accessible.name: row.title
    Accessible.description: row.explanation
    onCheckedChanged: row.change(checked)

    indicator: Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: control.checked ? Theme.on : Theme.groove
        border.width: Theme.highContrast ? 1.5 : control.checked ? 0 : 1
        border.color: Theme.highContrast ? Theme.edge : Theme.line

        Behavior on color {
            ColorAnimation {
                duration: Theme.duration
            }
        }

        Rectangle {
            readonly property real travel: parent.width - width - 4

            x: 2 + control.visualPosition * travel
            y: 2
            width: 17
            height: 17
            radius: 8.5
            color: !Theme.highContrast ? "white" : control.checked ? Theme.background : Theme.text
            border.width: Theme.highContrast ? 0 : 0.5
            border.color: Qt.rgba(0, 0, 0, 0.15)

            Behavior on x {
                NumberAnimation {
                    duration: Theme.duration
                }
            }
        }
        // A stroke for on and a ring for off, beside the knob.
        Rectangle {
            readonly property real middle: (control.checked !== control.mirrored) ? 10 : parent.width - 10

            x: middle - width / 2
            y: (parent.height - height) / 2
            width: control.checked ? 2 : 8
            height: 8
            radius: control.checked ? 0 : 4
            visible: Theme.highContrast
            color: control.checked ? Theme.background : "transparent"
            border.width: control.checked ? 0 : 1.5
            border.color: Theme.text
        }
    }

    FocusRing {
        radius: height / 2
    }
}
