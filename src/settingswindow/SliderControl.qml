import QtQuick
import QtQuick.Templates as T
import Quillmere.Settings

Row {
    id: control

    required property SettingRow row

    function take() {
        slider.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: 12

    Text {
        width: 64
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        text: control.row.display(control.row.value)
        font: Theme.font(13, Font.Normal)
        color: Theme.muted
        Accessible.ignored: true
    }
    T.Slider {
        id: slider

        // What an edited file holds may lie beyond the ends; looking at it does not change it.
        readonly property real shown: Math.max(from, Math.min(to, control.row.value))

        // By these names a screen reader looks for the ends.
        readonly property real minimumValue: from
        readonly property real maximumValue: to

        implicitWidth: 130
        implicitHeight: 22
        from: control.row.from
        to: control.row.to
        stepSize: control.row.step
        value: shown
        live: true
        Accessible.name: control.row.title
        Accessible.description: control.row.explanation
        onValueChanged: {
            if (Math.abs(value - shown) > stepSize / 1000)
                control.row.change(value);
        }

        background: Rectangle {
            y: (slider.height - height) / 2
            width: slider.width
            height: 4
            radius: 2
            color: Theme.highContrast ? Theme.line : Theme.groove

            Rectangle {
                x: slider.mirrored ? parent.width - width : 0
                width: slider.position * parent.width
                height: 4
                radius: 2
                color: Theme.highContrast ? Theme.text : Theme.accent
            }
        }
        handle: Rectangle {
            x: slider.visualPosition * (slider.width - width)
            y: (slider.height - height) / 2
            width: 16
            height: 16
            radius: 8
            color: "white"
            border.width: Theme.highContrast ? 2 : 0.5
            border.color: Theme.highContrast ? "black" : Qt.rgba(0, 0, 0, 0.25)

            FocusRing {
                control: slider
                radius: height / 2
            }
        }
    }
}
