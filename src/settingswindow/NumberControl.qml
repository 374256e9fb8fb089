import QtQuick
import QtQuick.Templates as T
import Quillmere.Settings

// A figure with its two buttons.
T.SpinBox {
    id: control

    required property SettingRow row
    // By these names a screen reader looks for the ends.
    readonly property real minimumValue: from
    readonly property real maximumValue: to
    readonly property int shown: Math.max(from, Math.min(to, Math.round(row.value)))

    function take() {
        forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: 148
    implicitHeight: 28
    leftPadding: mirrored ? 58 : 9
    rightPadding: mirrored ? 9 : 58
    from: row.from
    to: row.to
    stepSize: row.step
    value: shown
    editable: true
    font: Theme.font(13, Font.Normal)
    textFromValue: (value, locale) => row.display(value)
    valueFromText: (text, locale) => {
        // In the digits of the user's language as well as in those of most keyboards.
        const zeros = [48, Qt.locale().zeroDigit.charCodeAt(0)];
        const digits = Array.from(text, letter => zeros.map(zero => letter.charCodeAt(0) - zero).find(digit => digit >= 0 && digit <= 9) ?? "").join("");
        return digits === "" ? from : Number(digits);
    }
    Accessible.name: row.title
    Accessible.description: row.explanation
    onValueChanged: {
        if (value !== shown)
            row.change(value);
    }

    background: Rectangle {
        radius: 7
        color: Theme.background
        border.width: 1
        border.color: Theme.highContrast ? Theme.edge : Theme.groove
    }
    contentItem: TextInput {
        text: control.displayText
        font: control.font
        color: Theme.text
        selectionColor: Theme.accent
        selectedTextColor: Theme.accentText
        selectByMouse: true
        verticalAlignment: TextInput.AlignVCenter
        clip: true
        inputMethodHints: Qt.ImhDigitsOnly
        Accessible.ignored: true
    }
    down.indicator: Step {
        x: control.mirrored ? 2 : control.width - 54
        mark: "−"
        pressed: control.down.pressed
        usable: control.value > control.from
    }
    up.indicator: Step {
        x: control.mirrored ? 28 : control.width - 28
        mark: "+"
        pressed: control.up.pressed
        usable: control.value < control.to
    }

    component Step: Rectangle {
        property string mark
        property bool pressed
        property bool usable

        y: 2
        implicitWidth: 26
        implicitHeight: 24
        radius: 6
        color: pressed ? Theme.pressed : "transparent"

        Text {
            anchors.centerIn: parent
            text: parent.mark
            font: Theme.font(15, Font.Normal)
            color: Theme.text
            opacity: parent.usable ? 1 : Theme.highContrast ? 0 : 0.35
        }
    }

    FocusRing {
        visible: control.activeFocus
        radius: 9
    }
}
