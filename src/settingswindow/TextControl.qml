import QtQuick
import QtQuick.Templates as T
import Quillmere.Settings

T.TextField {
    id: control

    required property SettingRow row

    // What is ready is told by Return or by leaving the field.
    readonly property bool visualFocus: activeFocus

    function take() {
        forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: 240
    implicitHeight: 28
    leftPadding: 9
    rightPadding: 9
    verticalAlignment: TextInput.AlignVCenter
    horizontalAlignment: TextInput.AlignLeft
    text: row.value ?? ""
    font: Theme.font(13, Font.Normal)
    color: Theme.text
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    selectByMouse: true
    Accessible.name: row.title
    Accessible.description: row.explanation
    onEditingFinished: row.change(text)

    background: Rectangle {
        radius: 7
        color: Theme.background
        border.width: 1
        border.color: Theme.highContrast ? Theme.edge : Theme.groove
    }

    FocusRing {
        radius: 9
    }
}
